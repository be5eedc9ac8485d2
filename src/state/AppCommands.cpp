#include "state/AppCommands.h"

#include "commands/KeyRouting.h"
#include "commands/ShortcutKey.h"
#include "platform/Wording.h"

#include <utility>

using namespace Qt::StringLiterals;

bool isCommandEnabled(Command command, AppStore::Phase phase)
{
    return command != Command::NewIssue || phase == AppStore::Phase::Ready;
}

bool isOfIssueWindows(Command command)
{
    switch (command) {
    case Command::Reload:
    case Command::CopyKeys:
    case Command::CopyBranch:
    case Command::CopyLink:
    case Command::OpenInBrowser:
    case Command::PickStatus:
    case Command::PickPriority:
    case Command::PickAssignee:
    case Command::PickLabels:
    case Command::AssignToMe:
    case Command::TogglePalette:
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
    if (isEnabled(Command(command)))
        carryOut(Command(command));
}

bool AppCommands::runShortcut(const KeyPress &press)
{
    return runOffered(shortcutCommand(press));
}

bool AppCommands::runKey(const KeyPress &press)
{
    return runOffered(route(press));
}

bool AppCommands::runOffered(std::optional<Command> command)
{
    const bool isOffered = command && isEnabled(*command);
    if (isOffered)
        carryOut(*command);
    return isOffered;
}

void AppCommands::carryOut(Command command)
{
    if (m_issueKey.isEmpty())
        m_store->run(command);
    else if (command == Command::TogglePalette || pickerOf(command))
        Q_EMIT paletteRequested(command);
    else
        m_store->run(command, QStringList(m_issueKey));
}

CommandEntry AppCommands::entry(Command command) const
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
    for (const Command command : commandsIn(group)) {
        if (m_issueKey.isEmpty() || isOfIssueWindows(command))
            entries.append(entry(command));
    }
    return entries;
}

bool AppCommands::isEnabled(Command command) const
{
    return m_store && isCommandEnabled(command, m_store->phase()) &&
           (m_issueKey.isEmpty() || isOfIssueWindows(command));
}
