#include "model/IssueType.h"

#include "model/TextFolding.h"

#include <QHashFunctions>

#include <initializer_list>

using namespace Qt::StringLiterals;

IssueType::Kind IssueType::kind() const
{
    if (isSubtask || hierarchyLevel < 0)
        return Kind::Subtask;
    const QString text = folded(name);
    const auto contains = [&text](std::initializer_list<QLatin1StringView> words) {
        return std::ranges::any_of(words, [&text](auto word) { return text.contains(word); });
    };
    if (contains({"sub"_L1, "sous"_L1}))
        return Kind::Subtask;
    if (contains({"epic"_L1, "epopee"_L1}) || hierarchyLevel != 0)
        return Kind::Epic;
    if (contains({"bug"_L1, "anomalie"_L1, "bogue"_L1, "incident"_L1}))
        return Kind::Bug;
    if (contains({"story"_L1, "recit"_L1, "histoire"_L1}))
        return Kind::Story;
    if (contains({"task"_L1, "tache"_L1}))
        return Kind::Task;
    return Kind::Other;
}

size_t qHash(const IssueType &type, size_t seed)
{
    return qHashMulti(seed, type.id, type.name, type.isSubtask, type.hierarchyLevel);
}
