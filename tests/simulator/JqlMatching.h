#pragma once

#include "simulator/JqlQuery.h"
#include "simulator/Site.h"

/// Whether an issue fulfils a condition, for the site's signed-in user and at its present instant.
bool matches(const Site &site, const SiteIssue &issue, const JqlTerm &term);
