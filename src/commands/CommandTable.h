#pragma once

#include "commands/Command.h"
#include "commands/ShortcutKey.h"

#include <QList>
#include <QString>

#include <optional>

/// The one table of the commands' words: menus, the palette, hints and the reference of shortcuts take theirs from it.
/// Texts are the Mac's; `Wording` turns them into this system's.

/// The groups of the menu "Tickets", between which a line stands.
enum class CommandGroup { General, Editing, Sharing, Display };

/// The commands of a group in their order.
QList<Command> commandsIn(CommandGroup group);

enum class InspectorState { Closed, Open };
/// What menus and the palette call the command; empty for one that only keys ask for.
QString commandTitle(Command command, InspectorState inspector = InspectorState::Closed);
/// "⌘⇧O"; empty for a command without a shortcut.
QString commandShortcut(Command command);
/// "⌘⌥1" for a key of the table of shortcuts.
QString shortcutText(const ShortcutKey &key);

/// Whether the program has the command at all: no new issue while issues cannot be made.
bool isOffered(Command command);

/// The picker that the command opens; nothing for other commands.
std::optional<PickerKind> pickerOf(Command command);
/// The command that opens the picker.
Command pickCommand(PickerKind kind);
