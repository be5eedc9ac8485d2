#include "state/AppCommands.h"

#include "platform/Wording.h"
#include "state/CreateScreen.h"

using namespace Qt::StringLiterals;

bool isCommandEnabled(AppCommand command, AppStore::Phase phase)
{
    return command != AppCommand::NewIssue || (phase == AppStore::Phase::Ready && hasCreateScreen);
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

void AppCommands::run(int command)
{
    if (m_store && isEnabled(AppCommand(command)))
        m_store->run(AppCommand(command));
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
    for (const AppCommand command : commandsIn(group))
        entries.append(entry(command));
    return entries;
}

bool AppCommands::isEnabled(AppCommand command) const
{
    return m_store && isCommandEnabled(command, m_store->phase());
}
