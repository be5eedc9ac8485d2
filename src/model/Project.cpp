#include "model/Project.h"

#include <QHashFunctions>

size_t qHash(const Project &project, size_t seed)
{
    seed = qHashMulti(seed, project.id, project.key, project.name, project.isServiceDesk);
    seed = qHashMulti(seed, project.avatarURL.has_value(), project.avatarURL.value_or(QUrl()));
    return qHashRange(project.issueTypes.cbegin(), project.issueTypes.cend(), seed);
}
