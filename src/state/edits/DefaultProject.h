#pragma once

#include "model/Project.h"

/// The project that a new issue starts in: the one asked for, else the last one used if it still exists, else the first.
std::optional<QString> defaultProjectKey(const std::optional<QString> &createProjectKey,
                                         const std::optional<QString> &lastProject,
                                         const QList<Project> &projects);
