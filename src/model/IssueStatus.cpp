#include "model/IssueStatus.h"

#include "model/StatusNames.h"
#include "model/TextFolding.h"

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

using Words = std::initializer_list<QLatin1StringView>;

bool containsAny(const QString &text, Words words)
{
    return std::ranges::any_of(words, [&](QLatin1StringView word) { return text.contains(word); });
}

StatusCategory categoryOf(const QString &foldedName, const QString &jiraCategoryKey)
{
    if (jiraCategoryKey == "indeterminate"_L1)
        return StatusCategory::InProgress;
    if (jiraCategoryKey == "done"_L1) {
        const bool isCancelled = containsAny(
            foldedName, {"cancel"_L1, "annul"_L1, "won't"_L1, "wont"_L1, "abandon"_L1, "reject"_L1,
                         "rejet"_L1, "refus"_L1, "duplicate"_L1, "doublon"_L1});
        return isCancelled ? StatusCategory::Cancelled : StatusCategory::Done;
    }
    return containsAny(foldedName, {"backlog"_L1, "icebox"_L1}) ? StatusCategory::Backlog
                                                                : StatusCategory::Todo;
}

QString guessedCategoryKey(const QString &foldedName)
{
    if (containsAny(foldedName, {"done"_L1, "termin"_L1, "fini"_L1, "closed"_L1, "ferme"_L1,
                                 "resol"_L1, "livre"_L1, "deploy"_L1, "complete"_L1, "annul"_L1,
                                 "cancel"_L1, "won't"_L1, "rejet"_L1}))
        return u"done"_s;
    if (containsAny(foldedName, {"progress"_L1, "cours"_L1, "review"_L1, "revue"_L1, "test"_L1,
                                 "qa"_L1, "doing"_L1, "valid"_L1, "bloqu"_L1, "block"_L1}))
        return u"indeterminate"_s;
    return u"new"_s;
}

} // namespace

IssueStatus::IssueStatus(QString id, QString name, const std::optional<QString> &jiraCategoryKey)
    : m_id(std::move(id)), m_name(std::move(name))
{
    const QString foldedName = folded(m_name);
    m_category = categoryOf(foldedName, jiraCategoryKey.value_or(QString()));
    m_groupKey = statusGroupKey(foldedName);
}

IssueStatus IssueStatus::guessed(const QString &name)
{
    const QString foldedName = folded(name);
    return IssueStatus("name:"_L1 + foldedName, name, guessedCategoryKey(foldedName));
}

const QHash<QString, QString> &IssueStatus::canonicalLabels()
{
    return statusLabels();
}

double IssueStatus::progress() const
{
    if (m_category != StatusCategory::InProgress)
        return 0.0;
    const bool isNearlyDone = containsAny(m_groupKey, {"review"_L1, "revue"_L1, "relecture"_L1,
                                                       "qa"_L1, "test"_L1, "valid"_L1, "verif"_L1});
    return isNearlyDone ? 0.75 : 0.5;
}

QString IssueStatus::displayName() const
{
    return canonicalLabels().value(m_groupKey, m_name);
}

size_t qHash(const IssueStatus &status, size_t seed)
{
    return qHashMulti(seed, status.id(), status.name(), int(status.category()), status.groupKey());
}
