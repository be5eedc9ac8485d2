#pragma once

#include "simulator/Site.h"

/// The HTML that the site renders from a document. Only the media are complete; they refer to attachments by number.
QString htmlOf(const Site &site, const SiteIssue &issue, const QJsonObject &document);
