#include "model/IssueScope.h"

#include <QHashFunctions>

size_t qHash(const IssueScope &scope, size_t seed)
{
    seed = qHash(scope.value().index(), seed);
    if (const auto *project = scope.asProject())
        return qHashMulti(seed, project->key, int(project->view));
    if (const auto *period = scope.asActivity())
        return qHash(*period, seed);
    return seed;
}
