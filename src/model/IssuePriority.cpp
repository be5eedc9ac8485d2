#include "model/IssuePriority.h"

#include "model/TextFolding.h"

#include <QHash>
#include <QLatin1StringView>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct LevelWords
{
    PriorityLevel level;
    std::vector<QLatin1StringView> words;
};

/// The order matters: "highest" contains "high" and "lowest" contains "low", so the extreme levels are tested first.
const std::vector<LevelWords> &levelWords()
{
    static const std::vector<LevelWords> table{
        LevelWords{PriorityLevel::Urgent,
                   {"highest"_L1, "blocker"_L1, "critical"_L1, "urgent"_L1, "critique"_L1,
                    "bloquant"_L1, "plus haute"_L1, "p0"_L1}},
        LevelWords{PriorityLevel::Low,
                   {"lowest"_L1, "trivial"_L1, "plus basse"_L1, "low"_L1, "minor"_L1, "basse"_L1,
                    "faible"_L1, "mineur"_L1, "p3"_L1, "p4"_L1}},
        LevelWords{PriorityLevel::High,
                   {"high"_L1, "major"_L1, "haute"_L1, "elevee"_L1, "majeur"_L1, "p1"_L1}},
        LevelWords{PriorityLevel::Medium, {"medium"_L1, "normal"_L1, "moyenne"_L1, "p2"_L1}},
    };
    return table;
}

} // namespace

PriorityLevel priorityLevelFromName(const QString &jiraName)
{
    const QString name = folded(jiraName);
    for (const LevelWords &row : levelWords()) {
        if (std::ranges::any_of(row.words, [&](auto word) { return name.contains(word); }))
            return row.level;
    }
    return PriorityLevel::None;
}

QString displayName(PriorityLevel level)
{
    switch (level) {
    case PriorityLevel::Urgent:
        return u"Urgente"_s;
    case PriorityLevel::High:
        return u"Haute"_s;
    case PriorityLevel::Medium:
        return u"Moyenne"_s;
    case PriorityLevel::Low:
        return u"Basse"_s;
    case PriorityLevel::None:
        break;
    }
    return u"Aucune priorité"_s;
}

IssuePriority::IssuePriority(QString id, QString name)
    : m_id(std::move(id)), m_name(std::move(name)), m_level(priorityLevelFromName(m_name))
{
}

QString IssuePriority::displayName() const
{
    static const QHash<QString, QString> standardNames{
        {u"highest"_s, u"Urgente"_s}, {u"high"_s, u"Haute"_s},        {u"medium"_s, u"Moyenne"_s},
        {u"low"_s, u"Basse"_s},       {u"lowest"_s, u"Très basse"_s},
    };
    return standardNames.value(m_name.toLower(), m_name);
}

size_t qHash(const IssuePriority &priority, size_t seed)
{
    return qHashMulti(seed, priority.id(), priority.name(), int(priority.level()));
}
