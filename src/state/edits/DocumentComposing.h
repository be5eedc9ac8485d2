#pragma once

#include "model/ADFNode.h"
#include "model/JiraUser.h"

/// The document of a text written as Markdown, with the names of the users after an "@" as mentions.
ADFNode composedDocument(const QString &markdown, const QList<JiraUser> &users);

/// The new description of an issue: nothing for a text without a word. Whoever is mentioned in the present one can be
/// mentioned again, whether or not `candidates` has them.
std::optional<ADFNode> composedDescription(const QString &markdown,
                                           const std::optional<ADFNode> &present,
                                           const QList<JiraUser> &candidates);
