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

const Memo<quint64> &IssueDerivation::index() const
{
    return m_indexMemo.refreshed({version(Issues)}, [this] {
        m_index.update(m_inputs.issues);
        return version(Issues);
    });
}

std::optional<int> IssueDerivation::rowOf(QStringView key) const
{
    index();
    return m_index.keys().find(key);
}

const Memo<IssueRows> &IssueDerivation::order() const
{
    return m_order.refreshed({index().version, version(Recap), version(OrderingInput)}, [this] {
        return m_inputs.isRecap() ? recapOrder(m_index, m_order.value)
                                  : issueOrder(m_index, m_inputs.ordering, m_order.value);
    });
}

const Memo<std::vector<quint8>> &IssueDerivation::filter() const
{
    return m_filter.refreshed({index().version, version(Filters), version(Closed)},
                              [this] { return filterPasses(m_index, m_inputs); });
}

const Memo<IssueDerivation::Search> &IssueDerivation::search() const
{
    index();
    // Must be read before `refreshed`, which replaces the stored sources.
    const bool isSameIndex = m_search.sources.front() == m_indexMemo.version;
    return m_search.refreshed({m_indexMemo.version, version(Text)},
                              [this, isSameIndex] { return searched(isSameIndex); });
}

IssueDerivation::Search IssueDerivation::searched(bool isSameIndex) const
{
    const auto needle = SearchTexts::needle(m_inputs.filterText);
    const bool isNarrower = isSameIndex && needle.contains(m_search.value.needle);
    return {needle, isNarrower ? m_index.texts().containing(needle, m_search.value.hits)
                               : m_index.texts().containing(needle)};
}

const Memo<IssueRows> &IssueDerivation::visible() const
{
    return m_visible.refreshed({order().version, filter().version, search().version}, [this] {
        return rowsThatPass(m_order.value, m_filter.value, m_search.value.hits);
    });
}

const Memo<IssueList> &IssueDerivation::visibleMemo() const
{
    visible();
    return m_visibleIssues.refreshed(visibleSources(),
                                     [this] { return issuesAt(m_visible.value, m_inputs.issues); });
}

const Memo<QList<IssueGroup>> &IssueDerivation::listMemo() const
{
    visible();
    return m_groups.refreshed(
        {version(Issues), m_visible.version, version(GroupingInput), version(Recap), version(Me),
         version(Projects), version(Statuses), version(Locale)},
        [this] {
            return dividedIssues(m_visible.value, m_index, listRules(context()), m_groups.value);
        });
}

const Memo<QList<IssueGroup>> &IssueDerivation::boardMemo() const
{
    visible();
    return m_board.refreshed({version(Issues), m_visible.version, version(Project), version(Closed),
                              version(Statuses), version(Locale)},
                             [this] {
                                 return dividedIssues(m_visible.value, m_index,
                                                      boardRules(context()), m_board.value);
                             });
}

const VisiblePath &IssueDerivation::visiblePath() const
{
    if (m_inputs.layout == LayoutMode::Board) {
        return m_path
            .refreshed(
                {version(Layout), boardVersion()},
                [this] { return keysOf(boardColumns(), [](const IssueGroup &) { return true; }); })
            .value;
    }
    return m_path
        .refreshed({version(Layout), groupsVersion(), version(Collapsed)},
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
    return m_shapes
        .refreshed(visibleSources(), [this] { return KeyShapes(m_visible.value, m_index); })
        .value;
}

const Memo<IssueDerivationMenus> &IssueDerivation::menusMemo() const
{
    return m_menus.refreshed({version(Issues), version(Statuses), version(Locale)},
                             [this] { return filterMenus(m_inputs.issues, m_ranks, m_names); });
}

const SearchTexts &IssueDerivation::searchTexts() const
{
    index();
    return m_index.texts();
}
