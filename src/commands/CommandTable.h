#pragma once

#include "commands/AppCommand.h"
#include "commands/ShortcutKey.h"

#include <QList>
#include <QString>

/// The one table of the menus' commands: menus, hints and the reference of shortcuts take their words from it. Texts are
/// the Mac's; `Wording` turns them into this system's.

/// The groups of the menu "Tickets", between which a line stands.
enum class CommandGroup { General, Editing, Sharing, Display };

/// The commands of a group in their order.
QList<AppCommand> commandsIn(CommandGroup group);

enum class InspectorState { Closed, Open };
/// What the menus call the command.
QString commandTitle(AppCommand command, InspectorState inspector);
/// "⌘⇧O"; empty for a command without a shortcut.
QString commandShortcut(AppCommand command);
/// "⌘⌥1" for a key of the table of shortcuts.
QString shortcutText(const ShortcutKey &key);
