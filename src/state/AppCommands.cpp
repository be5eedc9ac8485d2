#include "state/AppCommands.h"

#include "commands/ShortcutKey.h"
#include "platform/Wording.h"
#include "state/CreateScreen.h"

#include <utility>

using namespace Qt::StringLiterals;

bool isCommandEnabled(AppCommand command, AppStore::Phase phase)
{
    return command != AppCommand::NewIssue || (phase == AppStore::Phase::Ready && hasCreateScreen);
}

bool isOfIssueWindows(AppCommand command)
{
    switch (command) {
    case AppCommand::Reload:
    case AppCommand::CopyKey:
    case AppCommand::CopyBranch:
    case AppCommand::CopyLink:
    case AppCommand::OpenInBrowser:
        return true;
    default:
        return false;
    }
}

void AppCommands::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        connect(m_store, &AppStore::phaseChanged, this, &AppCommands::changed);
        connect(m_store, &AppStore::inspectorKeyChanged, this, &AppCommands::changed);
    }
    Q_EMIT storeChanged();
    Q_EMIT changed();
}

void AppCommands::setIssueKey(const QString &key)
{
    if (std::exchange(m_issueKey, key) != key)
        Q_EMIT changed();
}

void AppCommands::run(int command)
{
    if (isEnabled(AppCommand(command)))
        carryOut(AppCommand(command));
}

bool AppCommands::runShortcut(const KeyPress &press)
{
    const auto command = shortcutCommand(press);
    if (!command || !isEnabled(*command))
        return false;
    if (m_issueKey.isEmpty())
        return m_store->handleShortcut(press);
    carryOut(*command);
    return true;
}

void AppCommands::carryOut(AppCommand command)
{
    if (m_issueKey.isEmpty())
        return m_store->run(command);
    switch (command) {
    case AppCommand::CopyKey:
        return m_store->copyKeys(QStringList(m_issueKey));
    case AppCommand::CopyBranch:
        return m_store->copyBranch(m_issueKey);
    case AppCommand::CopyLink:
        return m_store->copyLink(m_issueKey);
    case AppCommand::OpenInBrowser:
        return m_store->openInBrowser(m_issueKey);
    default:
        return m_store->run(command);
    }
}

CommandEntry AppCommands::entry(AppCommand command) const
{
    const bool isInspecting = m_store && m_store->showInspector();
    CommandEntry entry;
    entry.command = int(command);
    entry.title =
        commandTitle(command, isInspecting ? InspectorState::Open : InspectorState::Closed);
    entry.shortcut = Wording::localized(commandShortcut(command));
    entry.isEnabled = isEnabled(command);
    return entry;
}

QList<CommandEntry> AppCommands::entries(CommandGroup group) const
{
    QList<CommandEntry> entries;
    for (const AppCommand command : commandsIn(group)) {
        if (m_issueKey.isEmpty() || isOfIssueWindows(command))
            entries.append(entry(command));
    }
    return entries;
}

bool AppCommands::isEnabled(AppCommand command) const
{
    return m_store && isCommandEnabled(command, m_store->phase()) &&
           (m_issueKey.isEmpty() || isOfIssueWindows(command));
}
