#include "screens/detail/activity/ActivityContent.h"

#include "model/dates/DateLabels.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

void describeCreation(ActivityFacts &facts, const Issue &issue, const AppStore &store)
{
    const QString somebody = u"Quelqu'un"_s;
    facts.hasReporter = issue.reporter.has_value();
    if (issue.reporter)
        facts.reporter = withShownName(*issue.reporter, somebody);
    facts.reporterName = issue.reporter ? facts.reporter.name : somebody;
    facts.creationSentence = facts.reporterName + u" a créé le ticket"_s;
    if (!issue.created.isValid())
        return;
    facts.creationAge = u"· "_s + compactRelative(issue.created, store.now(), store.calendar());
    facts.creationSentence += u' ' + agoText(issue.created, store.now(), store.calendar());
}

} // namespace

void ActivityContent::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        for (const auto change : {&AppStore::issuesChanged, &AppStore::detailsChanged,
                                  &AppStore::myOpenIssuesChanged, &AppStore::projectsChanged,
                                  &AppStore::projectDetailsChanged, &AppStore::commentsChanged})
            connect(m_store, change, this, &ActivityContent::update);
        connect(m_store, &AppStore::nowChanged, this, &ActivityContent::update);
        connect(m_store, &AppStore::calendarChanged, this, &ActivityContent::update);
        connect(m_store, &AppStore::calendarChanged, this, &ActivityContent::calendarChanged);
        connect(m_store, &AppStore::meChanged, this, &ActivityContent::currentUserChanged);
        connect(m_store, &AppStore::sessionChanged, this, &ActivityContent::startAfresh);
    }
    Q_EMIT storeChanged();
    Q_EMIT currentUserChanged();
    Q_EMIT calendarChanged();
    startAfresh();
}

void ActivityContent::setKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    Q_EMIT keyChanged();
    startAfresh();
}

void ActivityContent::startAfresh()
{
    m_filter = CommentFilter::All;
    m_known.reset();
    m_arrivals.clear();
    m_comments.setComments({});
    update();
}

void ActivityContent::choose(int filter)
{
    if (filter < 0 || filter >= m_facts.filterTitles.size())
        return;
    m_filter = CommentFilter(filter);
    // What the new filter reveals was there before.
    m_arrivals.clear();
    update();
}

void ActivityContent::update()
{
    const auto issue = m_store ? m_store->issue(m_key) : std::nullopt;
    const auto project = issue ? m_store->project((*issue)->projectKey) : std::nullopt;
    const auto kind =
        project && project->isServiceDesk ? ProjectKind::ServiceDesk : ProjectKind::Ordinary;
    const auto comments = m_store ? m_store->comments().value(m_key) : QList<Comment>();
    const CommentCounts counts = CommentCounts::of(comments);
    noteArrivals(comments);
    // Without the picker, no other filter could be chosen any more.
    if (!offersFilter(counts, kind))
        m_filter = CommentFilter::All;

    QList<ShownComment> shown;
    for (const auto &comment : comments) {
        if (isShown(comment, m_filter))
            shown.append(ShownComment::of(comment, kind, m_store->now(), m_store->calendar()));
    }
    ActivityFacts facts{.offersFilter = offersFilter(counts, kind),
                        .filterTitles = filterTitles(counts, kind),
                        .filter = m_filter,
                        .countText = commentCountText(counts.all),
                        .emptyText = shown.isEmpty() ? emptyText(m_filter) : QString(),
                        .showsCreation = issue && m_filter == CommentFilter::All};
    if (issue)
        describeCreation(facts, **issue, *m_store);
    if (std::exchange(m_facts, facts) != facts)
        Q_EMIT factsChanged();
    m_comments.setComments(shown);
}

void ActivityContent::noteArrivals(const QList<Comment> &comments)
{
    if (!m_store || !m_store->comments().contains(m_key)) {
        m_known.reset();
        return;
    }
    QSet<QString> ids;
    for (const auto &comment : comments)
        ids.insert(comment.id);
    if (m_known)
        m_arrivals += ids - *m_known;
    m_known = m_known ? *m_known + ids : ids;
}

bool ActivityContent::takeArrival(const QString &id)
{
    return m_arrivals.remove(id);
}

QString ActivityContent::currentUserID() const
{
    return m_store && m_store->me() ? m_store->me()->id : QString();
}

QString ActivityContent::localeName() const
{
    return m_store ? m_store->calendar().locale.name() : QLocale().name();
}

QString ActivityContent::timeZone() const
{
    return QString::fromLatin1(m_store ? m_store->calendar().zone.id()
                                       : QTimeZone::systemTimeZoneId());
}
