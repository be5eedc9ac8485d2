#include "desktop/IssueFinder.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QChar EndOfSession = u':';
/// A number and a key of a project key of 255 characters.
constexpr qsizetype LongestId = 320;

bool isTooLong(const QStringList &words)
{
    if (words.size() > IssueFinder::MostWords)
        return true;
    qsizetype length = 0;
    for (const QString &word : words)
        length += word.size();
    return length > IssueFinder::LongestSearch;
}

} // namespace

IssueFinder::IssueFinder(AppStore &store) : m_store(store)
{
    connect(&m_store, &AppStore::sessionChanged, this, [this] { ++m_session; });
}

QStringList IssueFinder::matching(const QStringList &words)
{
    if (m_store.phase() != AppStore::Phase::Ready || isTooLong(words))
        return {};
    const auto &derivation = m_store.derivation();
    const SearchableIssues listed{derivation.inputs().issues, derivation.searchTexts()};
    const auto issues = openIssuesWith(words, m_memory.lists(listed, m_store.myOpenIssues()));
    QStringList ids;
    for (const auto &issue : issues)
        ids += QString::number(m_session) + EndOfSession + issue->key;
    return ids;
}

std::optional<IssueFinder::Found> IssueFinder::found(const QString &id) const
{
    if (m_store.phase() != AppStore::Phase::Ready || id.size() > LongestId ||
        id.section(EndOfSession, 0, 0) != QString::number(m_session))
        return std::nullopt;
    const auto issue = m_store.issue(id.section(EndOfSession, 1));
    if (!issue)
        return std::nullopt;
    const Issue &record = **issue;
    return Found{.key = record.key,
                 .summary = record.summary,
                 .details = record.key + u" · "_s + record.status.displayName()};
}
