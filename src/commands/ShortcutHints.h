#pragma once

#include "commands/Command.h"

#include <QStringList>

/// What controls say of the keys that do the same as they. The keys are those of the key map and of the table of
/// shortcuts, so that a hint cannot tell of a key that does something else. Texts are the Mac's; `Wording` turns them into
/// this system's.

/// How the keys of a command are written, in the order of the key map: "↓" and "J"; the keypad's are not told.
QStringList keyTexts(Command command);

/// "Rechercher (⌘K)"; the words alone for a command without a shortcut.
QString withShortcut(const QString &words, Command command);
/// "Sélectionner (X)", with the last of the command's keys.
QString withKey(const QString &words, Command command);

/// What the menus call a command, with its shortcut.
QString commandHint(Command command);
QString searchHint();
QString newIssueHint();
QString reloadHint();
QString openWindowHint();
QString layoutHint();
QString selectHint();
QString deselectHint();
QString closeHint();
