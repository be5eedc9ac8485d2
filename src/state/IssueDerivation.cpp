#include "state/IssueDerivation.h"

#include "state/IssueDerivationBoard.h"

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

std::vector<quint8> filterPasses(const IssueIndex &index, const IssueDerivationInputs &inputs)
{
    const bool showsClosed = inputs.showsClosed();
    const bool isUnfiltered = inputs.filters.isEmpty();
    std::vector<quint8> passes(index.rows().size());
    for (std::size_t row = 0; row < passes.size(); ++row) {
        passes[row] = (showsClosed || !index.rows()[row].isClosed) &&
                      (isUnfiltered || inputs.filters.matches(*index.issues()[row]));
    }
    return passes;
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
    if (memo.version == 0 || !(value == memo.value)) {
        memo.value = std::move(value);
        ++memo.version;
    }
    return memo;
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
    noteChange(Statuses, inputs.projectStatuses != before.projectStatuses);
    noteChange(Locale, inputs.locale != before.locale);
    if (inputs.projectStatuses != before.projectStatuses)
        m_ranks = StatusRanks(inputs.projectStatuses);
    if (inputs.locale != before.locale)
        m_names = NameOrder(inputs.locale);
}

IssueDerivationContext IssueDerivation::context() const
{
    return {m_inputs, m_index, m_ranks, m_names};
}

const IssueDerivation::Memo<quint64> &IssueDerivation::index() const
{
    return refreshed(m_indexMemo, {version(Issues)}, [this] {
        m_index.update(m_inputs.issues);
        return version(Issues);
    });
}

const IssueDerivation::Memo<IssueRows> &IssueDerivation::order() const
{
    return refreshed(m_order, {version(Issues), version(Recap), version(OrderingInput)}, [this] {
        return m_inputs.isRecap() ? recapOrder(m_inputs.issues)
                                  : issueOrder(m_inputs.issues, m_inputs.ordering);
    });
}

const IssueDerivation::Memo<std::vector<quint8>> &IssueDerivation::filter() const
{
    return refreshed(m_filter, {index().version, version(Filters), version(Closed)},
                     [this] { return filterPasses(m_index, m_inputs); });
}

const IssueDerivation::Memo<std::vector<quint8>> &IssueDerivation::search() const
{
    return refreshed(m_search, {index().version, version(Text)}, [this] {
        return m_index.texts().containing(SearchTexts::needle(m_inputs.filterText));
    });
}

const IssueDerivation::Memo<IssueRows> &IssueDerivation::visible() const
{
    return refreshed(m_visible, {order().version, filter().version, search().version}, [this] {
        return rowsThatPass(m_order.value, m_filter.value, m_search.value);
    });
}

const IssueList &IssueDerivation::visibleIssues() const
{
    return refreshed(m_visibleIssues, {version(Issues), visible().version},
                     [this] { return issuesAt(m_visible.value, m_inputs.issues); })
        .value;
}

const IssueDerivation::Memo<QList<IssueGroup>> &IssueDerivation::listMemo() const
{
    const Sources sources{version(Issues),   visible().version, version(GroupingInput),
                          version(Recap),    version(Me),       version(Projects),
                          version(Statuses), version(Locale)};
    return refreshed(m_groups, sources, [this] { return listGroups(m_visible.value, context()); });
}

const IssueDerivation::Memo<QList<IssueGroup>> &IssueDerivation::boardMemo() const
{
    const Sources sources{version(Issues), visible().version, version(Project),
                          version(Closed), version(Statuses), version(Locale)};
    return refreshed(m_board, sources,
                     [this] { return ::boardColumns(m_visible.value, context()); });
}

const QList<IssueGroup> &IssueDerivation::groups() const
{
    return listMemo().value;
}

const QList<IssueGroup> &IssueDerivation::boardColumns() const
{
    return boardMemo().value;
}

const QStringList &IssueDerivation::flatVisibleKeys() const
{
    if (m_inputs.layout == LayoutMode::Board) {
        return refreshed(m_keys, {version(Layout), boardMemo().version},
                         [this] {
                             return keysOf(m_board.value, [](const IssueGroup &) { return true; });
                         })
            .value;
    }
    return refreshed(m_keys, {version(Layout), listMemo().version, version(Collapsed)},
                     [this] {
                         return keysOf(m_groups.value, [this](const IssueGroup &group) {
                             return !m_inputs.collapsedGroups.contains(group.id);
                         });
                     })
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
        return m_groups.computations;
    case Step::Board:
        return m_board.computations;
    case Step::Keys:
        return m_keys.computations;
    case Step::Menus:
        return m_menus.computations;
    case Step::Count:
        break;
    }
    return 0;
}
