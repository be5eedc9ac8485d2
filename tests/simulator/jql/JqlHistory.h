#pragma once

#include "simulator/Site.h"
#include "simulator/jql/JqlQuery.h"

/// "field CHANGED BY … DURING (…, …)": true if the issue's history contains such a change.
bool hasChanged(const Site &site, const SiteIssue &issue, const JqlClause &clause);
/// "field WAS value DURING (…, …)": true if the field had this value at any time in the period.
bool hasBeen(const Site &site, const SiteIssue &issue, const JqlClause &clause,
             const QString &value);
