#pragma once

#include <QString>
#include <QStringView>

/// The text without case and diacritics, whatever the user's language: "Élevée" gives "elevee". Takes the canonical
/// decomposition, drops the combining marks of Latin, Greek and Cyrillic, and folds the case ("ß" gives "ss"). What has
/// no decomposition stays: "œ", "ø" and the typographic apostrophe.
QString folded(QStringView text);

/// Whether `needle` occurs in `haystack`, both folded. An empty needle occurs nowhere: callers decide what an empty
/// query shows before they ask.
bool localizedContains(QStringView haystack, QStringView needle);

/// The folded text as a part of a branch name: letters and digits of ASCII, one dash for every run of other signs, none
/// at the ends; at most 48 characters.
QString slugified(QStringView text);

/// The same number for a text on every run and machine, so that users, labels and projects keep their colours.
/// 0 to 2147483646; 5381 for the empty text.
int stableHash(QStringView text);
