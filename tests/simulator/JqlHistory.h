#pragma once

#include "simulator/JqlQuery.h"
#include "simulator/Site.h"

/// "field CHANGED BY … DURING (…, …)": whether such a change is in the issue's history.
bool hasChanged(const Site &site, const SiteIssue &issue, const JqlClause &clause);
/// "field WAS value DURING (…, …)": whether the field had this value at some instant of that time.
bool hasBeen(const Site &site, const SiteIssue &issue, const JqlClause &clause,
             const QString &value);
