#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

/// What is wrong with a document that someone sends, by the published schema of Jira's documents: which nodes may stand
/// in which, which marks go with what, and what a node cannot be without. Nothing when it is right.
std::optional<QString> faultOf(const QJsonValue &document);
