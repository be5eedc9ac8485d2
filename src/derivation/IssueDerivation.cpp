#include "derivation/IssueDerivation.h"

#include "derivation/IssueDerivationBoard.h"
#include "derivation/IssueDerivationFilter.h"

namespace {

IssueRows rowsThatPass(const IssueRows &order, const std::vector<quint8> &filter,
                       const std::vector<quint8> &search)
{
    IssueRows rows(order.size());
    std::size_t count = 0;
    for (const auto row : order) {
        rows[count] = row;
        count += filter[row] & search[row];
    }
    rows.resize(count);
    return rows;
}

IssueList issuesAt(const IssueRows &rows, const IssueList &issues)
{
    IssueList result;
    result.reserve(rows.size());
    for (const auto row : rows)
        result.append(issues[row]);
    return result;
}

template <typename IsShown>
QStringList keysOf(const QList<IssueGroup> &groups, IsShown isShown)
{
    QStringList keys;
    for (const auto &group : groups) {
        if (!isShown(group))
            continue;
        keys.reserve(keys.size() + group.issues.size());
        for (const auto &issue : group.issues)
            keys.append(issue->key);
    }
    return keys;
}

} // namespace

template <typename T, typename Compute>
const IssueDerivation::Memo<T> &IssueDerivation::refreshed(Memo<T> &memo, const Sources &sources,
                                                           Compute compute)
{
    if (memo.sources == sources)
        return memo;
    memo.sources = sources;
    ++memo.computations;
    T value = compute();
    const bool isNews = memo.version == 0 || !(value == memo.value);
    // Also where readers see no difference: what they do not see may be another.
    memo.value = std::move(value);
    memo.version += isNews;
    return memo;
}

template <typename Compute>
const IssueDerivation::Memo<IssueSections> &
IssueDerivation::refreshed(Grouped &grouped, const Sources &sources, Compute compute)
{
    const auto before = grouped.memo.version;
    refreshed(grouped.memo, sources, compute);
    if (grouped.memo.version != before)
        grouped.followed = {grouped.memo.version, {}, {}};
    return grouped.memo;
}

void IssueDerivation::noteChange(Input input, bool hasChanged)
{
    m_versions[input] += hasChanged;
}

void IssueDerivation::setInputs(const IssueDerivationInputs &inputs)
{
    const auto before = std::exchange(m_inputs, inputs);
    noteChange(Issues, inputs.issues != before.issues);
    noteChange(Recap, inputs.isRecap() != before.isRecap());
    noteChange(Project, inputs.scope != before.scope);
    noteChange(Filters, inputs.filters != before.filters);
    noteChange(Text, inputs.filterText != before.filterText);
    noteChange(OrderingInput, inputs.ordering != before.ordering);
    noteChange(GroupingInput, inputs.grouping != before.grouping);
    noteChange(Layout, inputs.layout != before.layout);
    noteChange(Closed, inputs.showsClosed() != before.showsClosed());
    noteChange(Collapsed, inputs.collapsedGroups != before.collapsedGroups);
    noteChange(Me, inputs.me != before.me);
    noteChange(Projects, inputs.projects != before.projects ||
                             inputs.projectDetails != before.projectDetails);
    const bool areRanksOther = inputs.projectStatuses != before.projectStatuses ||
                               inputs.scopeProject() != before.scopeProject();
    noteChange(Statuses, areRanksOther);
    noteChange(Locale, inputs.locale != before.locale);
    if (areRanksOther)
        m_ranks = StatusRanks(inputs.projectStatuses, inputs.scopeProject());
    if (inputs.locale != before.locale)
        m_names = NameOrder(inputs.locale);
}

IssueDerivationContext IssueDerivation::context() const
{
    return {m_inputs, m_index, m_ranks, m_names};
}

IssueDerivation::Sources IssueDerivation::indexSources() const
{
    return {version(Issues)};
}

IssueDerivation::Sources IssueDerivation::orderSources() const
{
    return {version(Issues), version(Recap), version(OrderingInput)};
}

IssueDerivation::Sources IssueDerivation::filterSources() const
{
    return {m_indexMemo.version, version(Filters), version(Closed)};
}

IssueDerivation::Sources IssueDerivation::searchSources() const
{
    return {m_indexMemo.version, version(Text)};
}

IssueDerivation::Sources IssueDerivation::visibleSources() const
{
    return {m_order.version, m_filter.version, m_search.version};
}

IssueDerivation::Sources IssueDerivation::visibleIssuesSources() const
{
    return {version(Issues), m_visible.version};
}

IssueDerivation::Sources IssueDerivation::listSources() const
{
    return {version(Issues), m_visible.version, version(GroupingInput), version(Recap),
            version(Me),     version(Projects), version(Statuses),      version(Locale)};
}

IssueDerivation::Sources IssueDerivation::boardSources() const
{
    return {version(Issues), m_visible.version, version(Project),
            version(Closed), version(Statuses), version(Locale)};
}

const IssueDerivation::Memo<quint64> &IssueDerivation::index() const
{
    return refreshed(m_indexMemo, indexSources(), [this] {
        m_index.update(m_inputs.issues);
        return version(Issues);
    });
}

const IssueDerivation::Memo<IssueOrder> &IssueDerivation::order() const
{
    return refreshed(m_order, orderSources(), [this] {
        return m_inputs.isRecap() ? recapOrder(m_inputs.issues)
                                  : issueOrder(m_inputs.issues, m_inputs.ordering);
    });
}

const IssueDerivation::Memo<std::vector<quint8>> &IssueDerivation::filter() const
{
    index();
    return refreshed(m_filter, filterSources(), [this] { return filterPasses(m_index, m_inputs); });
}

const IssueDerivation::Memo<IssueDerivation::Search> &IssueDerivation::search() const
{
    index();
    // Before its sources are noted as the present ones.
    const bool isSameIndex = m_search.sources.front() == m_indexMemo.version;
    return refreshed(m_search, searchSources(),
                     [this, isSameIndex] { return searched(isSameIndex); });
}

IssueDerivation::Search IssueDerivation::searched(bool isSameIndex) const
{
    const auto needle = SearchTexts::needle(m_inputs.filterText);
    const bool isNarrower = isSameIndex && needle.contains(m_search.value.needle);
    return {needle, isNarrower ? m_index.texts().containing(needle, m_search.value.hits)
                               : m_index.texts().containing(needle)};
}

const IssueDerivation::Memo<IssueRows> &IssueDerivation::visible() const
{
    order();
    filter();
    search();
    return refreshed(m_visible, visibleSources(), [this] {
        return rowsThatPass(m_order.value.rows, m_filter.value, m_search.value.hits);
    });
}

const IssueList &IssueDerivation::visibleIssues() const
{
    visible();
    return refreshed(m_visibleIssues, visibleIssuesSources(),
                     [this] { return issuesAt(m_visible.value, m_inputs.issues); })
        .value;
}

const IssueDerivation::Memo<IssueSections> &IssueDerivation::listMemo() const
{
    visible();
    return refreshed(m_groups, listSources(), [this] {
        return IssueSections(m_visible.value, m_index, m_order.value.keys, listRules(context()));
    });
}

const IssueDerivation::Memo<IssueSections> &IssueDerivation::boardMemo() const
{
    visible();
    return refreshed(m_board, boardSources(), [this] {
        return IssueSections(m_visible.value, m_index, m_order.value.keys, boardRules(context()));
    });
}

const QList<IssueGroup> &IssueDerivation::groups() const
{
    return listMemo().value.groups();
}

const QList<IssueGroup> &IssueDerivation::boardColumns() const
{
    return boardMemo().value.groups();
}

const QStringList &IssueDerivation::flatVisibleKeys() const
{
    if (m_inputs.layout == LayoutMode::Board) {
        return refreshed(m_keys, {version(Layout), boardMemo().version},
                         [this] {
                             return keysOf(boardColumns(), [](const IssueGroup &) { return true; });
                         })
            .value;
    }
    return refreshed(m_keys, {version(Layout), listMemo().version, version(Collapsed)},
                     [this] {
                         return keysOf(groups(), [this](const IssueGroup &group) {
                             return !m_inputs.collapsedGroups.contains(group.id);
                         });
                     })
        .value;
}

const KeyShapes &IssueDerivation::keyShapes() const
{
    visible();
    return refreshed(m_shapes, visibleIssuesSources(),
                     [this] { return KeyShapes(visibleIssues()); })
        .value;
}

const IssueDerivationMenus &IssueDerivation::menus() const
{
    return refreshed(m_menus, {version(Issues), version(Statuses), version(Locale)},
                     [this] { return filterMenus(m_inputs.issues, m_ranks, m_names); })
        .value;
}

const SearchTexts &IssueDerivation::searchTexts() const
{
    index();
    return m_index.texts();
}

int IssueDerivation::timesComputed(Step step) const
{
    switch (step) {
    case Step::Index:
        return m_indexMemo.computations;
    case Step::Order:
        return m_order.computations;
    case Step::Filter:
        return m_filter.computations;
    case Step::Search:
        return m_search.computations;
    case Step::Visible:
        return m_visible.computations;
    case Step::VisibleIssues:
        return m_visibleIssues.computations;
    case Step::Groups:
        return m_groups.memo.computations;
    case Step::Board:
        return m_board.memo.computations;
    case Step::Keys:
        return m_keys.computations;
    case Step::Menus:
        return m_menus.computations;
    case Step::Count:
        break;
    }
    return 0;
}
