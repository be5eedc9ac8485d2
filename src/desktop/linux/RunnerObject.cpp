#include "desktop/linux/RunnerObject.h"

#include "desktop/Requests.h"

#include <QDBusMetaType>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// KRunner's values for the kind of a match.
constexpr int PossibleMatch = 30;
constexpr int ExactMatch = 100;
/// The relevance of the first result, and how much less each further one has, so that they keep their order.
constexpr double FirstRelevance = 0.8;
constexpr double RelevanceStep = 0.01;

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerMatch &match)
{
    argument.beginStructure();
    argument << match.id << match.text << match.icon << match.type << match.relevance
             << match.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerMatch &match)
{
    argument.beginStructure();
    const auto &rest = argument >> match.id >> match.text >> match.icon >> match.type >>
                       match.relevance >> match.properties;
    rest.endStructure();
    return rest;
}

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerAction &action)
{
    argument.beginStructure();
    argument << action.id << action.text << action.icon;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerAction &action)
{
    argument.beginStructure();
    const auto &rest = argument >> action.id >> action.text >> action.icon;
    rest.endStructure();
    return rest;
}

RunnerObject::RunnerObject(IssueFinder &finder) : m_finder(finder)
{
    qDBusRegisterMetaType<RunnerMatch>();
    qDBusRegisterMetaType<QList<RunnerMatch>>();
    qDBusRegisterMetaType<RunnerAction>();
    qDBusRegisterMetaType<QList<RunnerAction>>();
}

QList<RunnerAction> RunnerObject::Actions()
{
    return {};
}

QList<RunnerMatch> RunnerObject::Match(const QString &query)
{
    // A text that is far too long is not even divided into words.
    if (query.size() > 2 * IssueFinder::LongestSearch)
        return {};
    QList<RunnerMatch> matches;
    for (const QString &id :
         m_finder.matching(query.simplified().split(u' ', Qt::SkipEmptyParts))) {
        const auto found = m_finder.found(id);
        if (!found)
            continue;
        const bool isKey = found->key.compare(query.trimmed(), Qt::CaseInsensitive) == 0;
        matches += {.id = id,
                    .text = found->summary,
                    .icon = u"fr.orvantis.Velmora"_s,
                    .type = isKey ? ExactMatch : PossibleMatch,
                    .relevance = FirstRelevance - RelevanceStep * double(matches.size()),
                    .properties = {{u"subtext"_s, found->details}}};
    }
    return matches;
}

void RunnerObject::SetActivationToken(const QString &token)
{
    m_activation = Activation::of(token.toUtf8(), {});
}

void RunnerObject::Run(const QString &id, const QString & /*action*/)
{
    const Activation activation = std::exchange(m_activation, {});
    if (const auto found = m_finder.found(id))
        Q_EMIT asked(activation, Requests::toOpen(found->key));
}
