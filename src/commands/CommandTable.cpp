#include "commands/CommandTable.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The group of a command that is not in the menu "Tickets".
constexpr std::nullopt_t elsewhere = std::nullopt;

struct Entry
{
    Command command;
    std::optional<CommandGroup> group;
    QStringView title;
};

constexpr std::array entries{
    Entry{Command::NewIssue, elsewhere, u"Nouveau ticket"},
    Entry{Command::TogglePalette, CommandGroup::General, u"Palette de commandes…"},
    Entry{Command::Reload, CommandGroup::General, u"Actualiser"},
    Entry{Command::PickStatus, CommandGroup::Editing, u"Changer le statut…"},
    Entry{Command::PickPriority, CommandGroup::Editing, u"Changer la priorité…"},
    Entry{Command::PickAssignee, CommandGroup::Editing, u"Assigner à…"},
    Entry{Command::AssignToMe, CommandGroup::Editing, u"M'assigner"},
    Entry{Command::PickLabels, CommandGroup::Editing, u"Étiquettes…"},
    Entry{Command::CopyKeys, CommandGroup::Sharing, u"Copier la clé"},
    Entry{Command::CopyBranch, CommandGroup::Sharing, u"Copier le nom de branche git"},
    Entry{Command::CopyLink, CommandGroup::Sharing, u"Copier le lien"},
    Entry{Command::OpenInBrowser, CommandGroup::Sharing, u"Ouvrir dans Jira"},
    Entry{Command::OpenWindow, elsewhere, u"Ouvrir dans une nouvelle fenêtre"},
    Entry{Command::ShowList, CommandGroup::Display, u"Afficher en liste"},
    Entry{Command::ShowBoard, CommandGroup::Display, u"Afficher en tableau"},
    Entry{Command::ToggleInspector, CommandGroup::Display, u"Afficher l'aperçu"},
    Entry{Command::OpenSettings, elsewhere, u"Réglages"},
    Entry{Command::CheckForUpdates, elsewhere, u"Rechercher les mises à jour…"},
};

constexpr std::array pickCommands{
    std::pair{PickerKind::Status, Command::PickStatus},
    std::pair{PickerKind::Priority, Command::PickPriority},
    std::pair{PickerKind::Assignee, Command::PickAssignee},
    std::pair{PickerKind::Labels, Command::PickLabels},
};

} // namespace

QList<Command> commandsIn(CommandGroup group)
{
    QList<Command> commands;
    for (const Entry &entry : entries) {
        if (entry.group == group)
            commands.append(entry.command);
    }
    return commands;
}

QString commandTitle(Command command, InspectorState inspector)
{
    if (command == Command::ToggleInspector && inspector == InspectorState::Open)
        return u"Masquer l'aperçu"_s;
    const auto *entry = std::ranges::find(entries, command, &Entry::command);
    return entry == entries.end() ? QString() : entry->title.toString();
}

QString commandShortcut(Command command)
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
    return text + printedCharacter(key, ownCharactersAt);
}

std::optional<PickerKind> pickerOf(Command command)
{
    const auto *row =
        std::ranges::find(pickCommands, command, &std::pair<PickerKind, Command>::second);
    return row == pickCommands.end() ? std::nullopt : std::optional(row->first);
}

Command pickCommand(PickerKind kind)
{
    return std::ranges::find(pickCommands, kind, &std::pair<PickerKind, Command>::first)->second;
}
