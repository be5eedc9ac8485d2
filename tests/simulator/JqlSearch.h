#pragma once

#include "simulator/JqlQuery.h"
#include "simulator/Site.h"

#include <expected>

/// The issues that a query finds, in its order; the error is what the site says about a query that it refuses: one it
/// cannot read, a field or a project that it does not know, or no condition at all.
std::expected<QList<const SiteIssue *>, QString> searchIssues(const Site &site, const QString &jql);
