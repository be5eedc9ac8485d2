#include "state/edits/DefaultProject.h"

#include <algorithm>

std::optional<QString> defaultProjectKey(const std::optional<QString> &createProjectKey,
                                         const std::optional<QString> &lastProject,
                                         const QList<Project> &projects)
{
    if (createProjectKey)
        return createProjectKey;
    const bool isKnown =
        std::ranges::any_of(projects, [&](const Project &p) { return p.key == lastProject; });
    if (isKnown)
        return lastProject;
    return projects.isEmpty() ? std::nullopt : std::optional(projects.front().key);
}
