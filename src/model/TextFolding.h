#pragma once

#include <QString>
#include <QStringView>

/// The text without case and diacritics, independent of the user's language: "Élevée" gives "elevee". Uses the
/// canonical decomposition, removes the combining marks of Latin, Greek and Cyrillic, and folds the case ("ß" gives
/// "ss"). Characters without a decomposition stay as they are: "œ", "ø" and the typographic apostrophe. Use it to
/// compare names, and `foldedForSearch` to compare what users search for.
QString folded(QStringView text);

/// The text as searches compare it: folded, with "œ" and "æ" written as the two letters that people type for them. Not
/// for comparing names: two different names may give the same text.
QString foldedForSearch(QStringView text);

/// True if `haystack` contains `needle` when both are folded for search. An empty needle is never contained: the caller
/// decides what an empty query shows.
bool localizedContains(QStringView haystack, QStringView needle);

/// The folded text in the form used in branch names: ASCII letters and digits, with one dash for every sequence of
/// other characters and none at the start or end. At most 48 characters.
QString slugified(QStringView text);

/// A hash that is equal on every run and machine, so that users, labels and projects keep their colours. From 0 to
/// 2147483646; 5381 for the empty text.
int stableHash(QStringView text);
