#include "model/dates/DateLabels.h"
#include "state/AppStore.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto Minute = 60s;

QString countText(qsizetype issues)
{
    return issues == 1 ? u"1 ticket"_s : u"%1 tickets"_s.arg(issues);
}

} // namespace

const IssueDerivation &AppStore::derivation() const
{
    if (stale() & List)
        m_derivation.setInputs(derivationInputs());
    return m_derivation;
}

IssueDerivationInputs AppStore::derivationInputs() const
{
    return {.issues = *m_issues,
            .scope = *m_scope,
            .filters = *m_filters,
            .filterText = *m_filterText,
            .ordering = *m_ordering,
            .grouping = *m_grouping,
            .layout = *m_layout,
            .showCompleted = *m_showCompleted,
            .collapsedGroups = *m_collapsedGroups,
            .me = *m_me,
            .projects = *m_projects,
            .projectDetails = *m_projectDetails,
            .projectStatuses = *m_projectStatuses,
            .locale = m_context.calendar.locale};
}

void AppStore::flush(unsigned what)
{
    if (what & List)
        feedLists();
    if (what & Marks)
        feedMarks();
    if (what & Sidebar)
        feedSidebar();
    if (what & ToastRows)
        m_toastModel.setToasts(*m_toasts);
    const bool isBoardInSight = *m_layout == LayoutMode::Board;
    // The hidden layout gets the time and the people, like its rows, when it is shown again.
    if (what & (List | Time))
        isBoardInSight ? m_board.setNow(*m_now) : m_issueList.setNow(*m_now);
    if (what & (List | Captions | Time))
        refreshCaptions();
    if (what & (List | Sidebar | Time))
        refreshActivityHeader();
    if (!isBoardInSight && (what & (List | Sidebar | People)))
        refreshBadges();
}

void AppStore::feedLists()
{
    m_derivation.setInputs(derivationInputs());
    // The hidden layout is not updated, so that showing it again costs nothing if nothing has changed. It is only
    // emptied, so that it keeps no data of an ended session.
    const bool isEmpty = m_issues->isEmpty();
    if (isEmpty || *m_layout == LayoutMode::Board)
        feedBoard();
    if (isEmpty || *m_layout == LayoutMode::List)
        feedGroups();
}

void AppStore::feedBoard()
{
    const quint64 version = m_derivation.boardVersion();
    if (std::exchange(m_fedBoard, version) != version)
        m_board.setColumns(boardColumns());
}

void AppStore::feedGroups()
{
    const std::pair shown(m_derivation.groupsVersion(), *m_collapsedGroups);
    if (std::exchange(m_fedGroups, shown) != shown)
        m_issueList.setGroups(groups(), shown.second);
}

void AppStore::feedMarks()
{
    m_board.setFocusedKey(m_focusedKey->value_or(QString()));
    m_board.setCheckedKeys(*m_checked);
    m_board.setOpenKey(m_inspectorKey->value_or(QString()));
    m_issueList.setFocusedKey(m_focusedKey->value_or(QString()));
    m_issueList.setCheckedKeys(*m_checked);
    m_issueList.setOpenKey(m_inspectorKey->value_or(QString()));
}

void AppStore::feedSidebar()
{
    m_sidebar.setInputs({.projects = *m_projects,
                         .favoriteProjects = *m_favoriteProjects,
                         .scope = *m_scope,
                         .myOpenIssues = myOpenCount(),
                         .hasLoadError = m_loadError->has_value()});
}

void AppStore::refreshCaptions()
{
    const int count = int(derivation().visibleCount());
    m_visibleCount.set(count);
    m_scopeTitle.set(::scopeTitle(m_derivation.inputs(), *m_now, m_context.calendar));
    m_listAge.set(listAgeText());
    m_countHint.set(countHintText());
    m_subtitle.set(countText(count) + (*m_isLoading ? u" · synchronisation…"_s : QString()));
}

QString AppStore::listAgeText() const
{
    if (!*m_session || !*m_loadError || m_issues->isEmpty())
        return {};
    const QDateTime fetched = (*m_session)->fetchedAt.value(*m_scope);
    return fetched.isValid() ? agoText(fetched, *m_now, m_context.calendar) : QString();
}

QString AppStore::countHintText() const
{
    const auto limit = *m_session ? (*m_session)->service()->listLimit(*m_scope) : std::nullopt;
    if (!limit || m_issues->size() < *limit)
        return {};
    return u"La liste s'arrête aux %1 premiers tickets."_s.arg(*limit);
}

void AppStore::setCalendar(const UserCalendar &calendar)
{
    const Batch batch(*this);
    m_context.calendar = calendar;
    m_issueList.setCalendar(calendar);
    m_board.setCalendar(calendar);
    // Badges name times, too.
    m_fedBadges = {};
    markStale(List);
    Q_EMIT calendarChanged();
}

void AppStore::startMinutes()
{
    const auto tick = [this] { m_now.set(m_context.clock.now()); };
    tick();
    m_minuteTimer = m_context.clock.every(Minute, tick);
}
