#pragma once

#include "simulator/Site.h"
#include "simulator/jql/JqlQuery.h"

/// True if the issue satisfies the condition, for the signed-in user and at the current time of the site.
bool matches(const Site &site, const SiteIssue &issue, const JqlTerm &term);
