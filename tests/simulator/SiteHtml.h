#pragma once

#include "simulator/Site.h"

/// A document as the site shows it in a browser. Only its media matter, which name the attachments by number.
QString htmlOf(const Site &site, const SiteIssue &issue, const QJsonObject &document);
