#pragma once

#include "commands/Command.h"
#include "commands/ShortcutKey.h"

#include <QList>
#include <QString>

#include <optional>

/// The texts of the commands. Menus, the palette, hints and the list of shortcuts take their texts from this table. The
/// texts use macOS terms and symbols; `Wording` converts them to those of the current system.

/// The groups of the menu "Tickets", which are divided by separators.
enum class CommandGroup { General, Editing, Sharing, Display };

/// The commands of a group in their order.
QList<Command> commandsIn(CommandGroup group);

enum class InspectorState { Closed, Open };
/// The command's title in menus and the palette; empty for a command that only has keys.
QString commandTitle(Command command, InspectorState inspector = InspectorState::Closed);
/// The shortcut as text, such as "⌘⇧O"; empty for a command without a shortcut.
QString commandShortcut(Command command);
/// A key of the table of shortcuts as text, such as "⌘⌥1", with the character that the user's keyboard layout requires.
QString shortcutText(const ShortcutKey &key);

/// The picker that the command opens; nothing for other commands.
std::optional<PickerKind> pickerOf(Command command);
/// The command that opens the picker.
Command pickCommand(PickerKind kind);
