#pragma once

#include "app/Outside.h"
#include "support/ScriptedService.h"

struct SiteSize
{
    int issues = 0;
    int projects = 0;
};

/// A site with the given number of issues, all of them in every list, that responds immediately.
std::shared_ptr<ScriptedService> siteWith(SiteSize size);

/// The external services of the program on that site: a clock without waits, and preferences in the given folder.
Outside outsideWith(const std::shared_ptr<ScriptedService> &site, const QString &folder);
