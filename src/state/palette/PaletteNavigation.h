#pragma once

#include "commands/OptionItem.h"
#include "model/Project.h"
#include "state/recap/ActivityNavigation.h"

/// The number of destinations shown for an empty query. They are the ones that do not depend on projects.
constexpr qsizetype fixedDestinations = 6;

/// The destinations that the palette offers: the user's own lists, four recaps, then each project and its active
/// sprint, in the order of the projects.
QList<OptionItem> paletteNavigation(const QList<Project> &projects, Recap::People people);
