#pragma once

#include "simulator/SiteIssue.h"

/// "text ~ words": whether title, document and comments hold all of the words, without regard to case and accents; one
/// that ends with an asterisk may be only the beginning.
bool containsWords(const SiteIssue &issue, const QString &words);

/// Words without case and accents.
QStringList foldedWords(const QString &text);
/// All the text of a document, with blanks between its pieces.
QString plainText(const QJsonObject &document);
