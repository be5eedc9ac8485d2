#pragma once

#include "simulator/Site.h"
#include "simulator/jql/JqlQuery.h"

#include <expected>

/// The issues found by a query, in its order. The error is the message with which the site rejects the query: it cannot
/// be parsed, names an unknown field or project, or has no condition.
std::expected<QList<const SiteIssue *>, QString> searchIssues(const Site &site, const QString &jql);
