#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

/// Checks a received document against the published schema of Jira's documents: the nesting of nodes, the allowed marks
/// and the required attributes. Returns the first error, or nothing if the document is valid.
std::optional<QString> faultOf(const QJsonValue &document);

/// The number of characters in the texts of a document.
qsizetype lengthOf(const QJsonValue &document);
/// The maximum of that number for descriptions and comments.
inline constexpr qsizetype LongestText = 32'767;
/// The site's message for a longer one.
QString tooLongText();
