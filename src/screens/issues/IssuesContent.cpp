#include "screens/issues/IssuesContent.h"

#include "state/CreateScreen.h"

using namespace Qt::StringLiterals;

namespace {

EmptyScreen nothingMatches()
{
    return {u"line.3.horizontal.decrease.circle"_s, u"Aucun ticket ne correspond"_s,
            u"Essaie d'élargir la recherche ou de retirer des filtres."_s,
            u"Effacer les filtres"_s};
}

EmptyScreen nothingHappened(const ActivityPeriod &period, const QDateTime &now,
                            const UserCalendar &calendar)
{
    const QString whose = period.teamWide ? QString() : u" par toi"_s;
    return {u"calendar.badge.exclamationmark"_s, u"Aucune activité"_s,
            u"Aucun ticket traité "_s + period.rangeLabel(now, calendar) + whose + u'.',
            period.range == ActivityRange::Week ? u"Semaine précédente"_s : u"Mois précédent"_s};
}

EmptyScreen nothingToDo()
{
    return {u"checkmark.seal"_s, u"Rien à faire ici"_s,
            u"Aucun ticket dans cette vue. Profite, ou crée-en un avec C."_s, u"Nouveau ticket"_s,
            true};
}

FilterState filterState(const AppStore &store)
{
    return store.filterText().isEmpty() && store.filters().isEmpty() ? FilterState::Unfiltered
                                                                     : FilterState::Filtered;
}

} // namespace

EmptyScreen emptyScreen(const IssueScope &scope, FilterState filter, const QDateTime &now,
                        const UserCalendar &calendar)
{
    if (filter == FilterState::Filtered)
        return nothingMatches();
    if (const auto *period = scope.asActivity())
        return nothingHappened(*period, now, calendar);
    return nothingToDo();
}

void IssuesContent::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        connect(m_store, &AppStore::issuesChanged, this, &IssuesContent::update);
        connect(m_store, &AppStore::isLoadingChanged, this, &IssuesContent::update);
        connect(m_store, &AppStore::loadErrorChanged, this, &IssuesContent::update);
        connect(m_store, &AppStore::visibleCountChanged, this, &IssuesContent::update);
        // With an empty list these changes do not change the count, so they are observed separately.
        connect(m_store, &AppStore::filterTextChanged, this, &IssuesContent::update);
        connect(m_store, &AppStore::filtersChanged, this, &IssuesContent::update);
        connect(m_store, &AppStore::scopeChanged, this, &IssuesContent::update);
        connect(m_store, &AppStore::calendarChanged, this, &IssuesContent::update);
        connect(m_store, &AppStore::scopeChanged, this, &IssuesContent::recapChanged);
    }
    Q_EMIT storeChanged();
    Q_EMIT recapChanged();
    update();
}

IssuesContent::Kind IssuesContent::presentKind() const
{
    if (m_store->issues().isEmpty() && m_store->isLoading())
        return Kind::Loading;
    if (m_store->issues().isEmpty() && m_store->loadError().has_value())
        return Kind::Failed;
    return m_store->visibleCount() > 0 ? Kind::Issues : Kind::Empty;
}

void IssuesContent::update()
{
    if (!m_store)
        return;
    const Kind kind = presentKind();
    const EmptyScreen empty =
        emptyScreen(m_store->scope(), filterState(*m_store), m_store->now(), m_store->calendar());
    if (m_kind == kind && m_empty == empty)
        return;
    m_kind = kind;
    m_empty = empty;
    Q_EMIT changed();
}

void IssuesContent::runEmptyAction()
{
    if (filterState(*m_store) == FilterState::Filtered) {
        m_store->setFilterText({});
        m_store->setFilters({});
    } else if (const auto *period = m_store->scope().asActivity()) {
        m_store->select(IssueScope::activity(
            {period->range, std::min(period->offset - 1, 0), period->teamWide}));
    } else {
        CreateScreen::open(m_store, {});
    }
}
