#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

/// Checks a received document against the published schema of Jira's documents: the nesting of nodes, the allowed marks
/// and the required attributes. Returns the first error, or nothing if the document is valid.
std::optional<QString> faultOf(const QJsonValue &document);
