#pragma once

#include "model/ADFNode.h"
#include "model/JiraUser.h"

/// Converts Markdown to a document. A name of one of the users after an "@" becomes a mention.
ADFNode composedDocument(const QString &markdown, const QList<JiraUser> &users);

/// The new description of an issue; nothing for a text without words. Users who are mentioned in the `present`
/// description can be mentioned again, even if they are not among `candidates`.
std::optional<ADFNode> composedDescription(const QString &markdown,
                                           const std::optional<ADFNode> &present,
                                           const QList<JiraUser> &candidates);
