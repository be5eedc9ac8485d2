#include "commands/CommandTable.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Entry
{
    AppCommand command;
    CommandGroup group;
    QStringView title;
};

constexpr std::array entries{
    Entry{AppCommand::CommandPalette, CommandGroup::General, u"Palette de commandes…"},
    Entry{AppCommand::Reload, CommandGroup::General, u"Actualiser"},
    Entry{AppCommand::ChangeStatus, CommandGroup::Editing, u"Changer le statut…"},
    Entry{AppCommand::ChangePriority, CommandGroup::Editing, u"Changer la priorité…"},
    Entry{AppCommand::ChangeAssignee, CommandGroup::Editing, u"Assigner à…"},
    Entry{AppCommand::AssignToMe, CommandGroup::Editing, u"M'assigner"},
    Entry{AppCommand::ChangeLabels, CommandGroup::Editing, u"Étiquettes…"},
    Entry{AppCommand::CopyKey, CommandGroup::Sharing, u"Copier la clé"},
    Entry{AppCommand::CopyBranch, CommandGroup::Sharing, u"Copier le nom de branche git"},
    Entry{AppCommand::CopyLink, CommandGroup::Sharing, u"Copier le lien"},
    Entry{AppCommand::OpenInBrowser, CommandGroup::Sharing, u"Ouvrir dans Jira"},
    Entry{AppCommand::ShowList, CommandGroup::Display, u"Afficher en liste"},
    Entry{AppCommand::ShowBoard, CommandGroup::Display, u"Afficher en tableau"},
    Entry{AppCommand::TogglePeek, CommandGroup::Display, u"Afficher l'aperçu"},
};

} // namespace

QList<AppCommand> commandsIn(CommandGroup group)
{
    QList<AppCommand> commands;
    for (const Entry &entry : entries) {
        if (entry.group == group)
            commands.append(entry.command);
    }
    return commands;
}

QString commandTitle(AppCommand command, InspectorState inspector)
{
    // It stands in a menu of its own.
    if (command == AppCommand::NewIssue)
        return u"Nouveau ticket"_s;
    if (command == AppCommand::TogglePeek && inspector == InspectorState::Open)
        return u"Masquer l'aperçu"_s;
    const auto *entry = std::ranges::find(entries, command, &Entry::command);
    return entry == entries.end() ? QString() : entry->title.toString();
}

QString commandShortcut(AppCommand command)
{
    const auto keys = shortcutKeys();
    const auto key = std::ranges::find(keys, command, &ShortcutKey::command);
    return key == keys.end() ? QString() : shortcutText(*key);
}

QString shortcutText(const ShortcutKey &key)
{
    QString text = u"⌘"_s;
    if (key.flags.testFlag(Qt::AltModifier))
        text += u'⌥';
    if (key.shift == ShortcutKey::Shift::Held)
        text += u'⇧';
    return text + QChar(key.character).toUpper();
}
