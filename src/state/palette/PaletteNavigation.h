#pragma once

#include "commands/OptionItem.h"
#include "model/Project.h"
#include "state/recap/ActivityNavigation.h"

/// How many destinations of the program's own an empty query offers: the first six.
constexpr qsizetype fixedDestinations = 6;

/// Where the palette can take the user: the user's own lists, four recaps, then each project and its active sprint, in
/// the order of the projects.
QList<OptionItem> paletteNavigation(const QList<Project> &projects, Recap::People people);
