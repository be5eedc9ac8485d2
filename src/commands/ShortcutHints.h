#pragma once

#include "commands/Command.h"

#include <QStringList>

/// Hints of controls about the keys that have the same effect. The keys are taken from the key map and the table of
/// shortcuts, so that the hints are always correct. The texts use macOS terms and symbols; `Wording` converts them to
/// those of the current system.

/// The keys of a command as texts, in the order of the key map, such as "↓" and "J". Keys of the keypad are left out.
QStringList keyTexts(Command command);

/// The words and the command's shortcut, such as "Rechercher (⌘K)"; only the words for a command without a shortcut.
QString withShortcut(const QString &words, Command command);
/// The words and the last of the command's keys, such as "Sélectionner (X)".
QString withKey(const QString &words, Command command);

/// The command's menu title with its shortcut.
QString commandHint(Command command);
QString searchHint();
QString newIssueHint();
QString reloadHint();
QString openWindowHint();
QString layoutHint();
QString selectHint();
QString deselectHint();
QString closeHint();
