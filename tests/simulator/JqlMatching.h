#pragma once

#include "simulator/JqlQuery.h"
#include "simulator/Site.h"

/// True if the issue satisfies the condition, for the signed-in user and at the current time of the site.
bool matches(const Site &site, const SiteIssue &issue, const JqlTerm &term);
