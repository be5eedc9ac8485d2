#include "state/composing/MentionRanking.h"

#include "model/TextFolding.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MostSuggestions = 6;

/// How well a user matches.
enum class Rank { NameStart, WordStart, Elsewhere };

QList<JiraUser> withoutRepeats(const QList<JiraUser> &users)
{
    QSet<QString> ids;
    QList<JiraUser> result;
    for (const JiraUser &user : users) {
        if (ids.contains(user.id))
            continue;
        ids.insert(user.id);
        result.append(user);
    }
    return result;
}

std::optional<Rank> rankOf(const JiraUser &user, const QString &query)
{
    const QString name = folded(user.name);
    if (name.startsWith(query))
        return Rank::NameStart;
    const auto isFound = [&](const QString &word) { return word.startsWith(query); };
    if (std::ranges::any_of(name.split(u' '), isFound))
        return Rank::WordStart;
    if (name.contains(query) || (user.email && folded(*user.email).startsWith(query)))
        return Rank::Elsewhere;
    return std::nullopt;
}

/// The matching users, the best first. A good match hides the weak ones.
QList<JiraUser> matching(const QList<JiraUser> &users, const QString &query)
{
    QList<JiraUser> nameStarts;
    QList<JiraUser> wordStarts;
    QList<JiraUser> others;
    for (const JiraUser &user : users) {
        const auto rank = rankOf(user, query);
        if (rank == Rank::NameStart)
            nameStarts.append(user);
        else if (rank == Rank::WordStart)
            wordStarts.append(user);
        else if (rank)
            others.append(user);
    }
    const QList<JiraUser> good = nameStarts + wordStarts;
    return good.isEmpty() ? others : good;
}

} // namespace

QList<JiraUser> mentionSuggestions(const QString &words, const QList<JiraUser> &pool)
{
    const QList<JiraUser> users = withoutRepeats(pool);
    const QString query = folded(words);
    return (query.isEmpty() ? users : matching(users, query)).mid(0, MostSuggestions);
}
