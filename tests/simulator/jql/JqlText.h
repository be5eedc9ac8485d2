#pragma once

#include "simulator/SiteIssue.h"

/// "text ~ words": true if the summary, the description and the comments together contain all the words, ignoring case
/// and accents. A word with an asterisk at its end matches the beginning of a word.
bool containsWords(const SiteIssue &issue, const QString &words);

/// The words of the text, without case and accents.
QStringList foldedWords(const QString &text);
/// All text of a document, with blanks between its parts.
QString plainText(const QJsonObject &document);
