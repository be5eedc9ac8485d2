#pragma once

#include "app/Outside.h"
#include "support/ScriptedService.h"

struct SiteSize
{
    int issues = 0;
    int projects = 0;
};

/// A site with so many issues, all in every list, that answers at once.
std::shared_ptr<ScriptedService> siteWith(SiteSize size);

/// What a program on that site meets of the machine: a clock that never lets it wait, and preferences in that folder.
Outside outsideWith(const std::shared_ptr<ScriptedService> &site, const QString &folder);
