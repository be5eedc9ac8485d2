// How what has been computed follows single issues that have become others. Whatever has not been computed of the
// present inputs is left to its computation.

#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationBoard.h"
#include "derivation/IssueDerivationFilter.h"

#include <algorithm>
#include <iterator>

namespace {

/// Past so many the whole computation costs no more.
constexpr std::size_t MostFollowed = 64;
/// The most steps that are kept for those who show the groups.
constexpr std::size_t MostSteps = 64;

void moveRow(IssueRows &rows, qsizetype from, qsizetype to)
{
    const auto begin = rows.begin();
    if (from < to)
        std::rotate(begin + from, begin + from + 1, begin + to + 1);
    else
        std::rotate(begin + to, begin + from, begin + from + 1);
}

} // namespace

struct IssueDerivation::Followers
{
    bool index = false;
    /// The order, the filter, the search and what is left of them.
    bool visible = false;
    bool visibleIssues = false;
    bool shapes = false;
    /// The rules by which the sections follow, where they do.
    std::optional<SectionRules> list;
    std::optional<SectionRules> board;
    IssueGroupSteps listSteps;
    IssueGroupSteps boardSteps;
};

/// An issue on its way from what it was to what it is.
struct IssueDerivation::Passage
{
    quint32 row = 0;
    IndexedIssue before;
    SortKey keyBefore;
    bool wasVisible = false;
    bool isVisible = false;
};

void IssueDerivation::letGo()
{
    m_inputs.issues = {};
    if (m_indexMemo.sources == indexSources())
        m_index.letGo();
}

void IssueDerivation::takeBack(const IssueList &issues, const IssueRows &rows)
{
    m_inputs.issues = issues;
    auto following = followers(rows.size());
    if (following.index) {
        m_index.takeBack(issues);
        for (const auto row : rows)
            follow(row, following);
    }
    settle(following);
}

IssueDerivation::Followers IssueDerivation::followers(std::size_t rows) const
{
    Followers result;
    result.index = m_indexMemo.sources == indexSources();
    result.visible = result.index && rows <= MostFollowed && m_order.sources == orderSources() &&
                     m_filter.sources == filterSources() && m_search.sources == searchSources() &&
                     m_visible.sources == visibleSources();
    if (!result.visible)
        return result;
    result.visibleIssues = m_visibleIssues.sources == visibleIssuesSources();
    result.shapes = m_shapes.sources == visibleIssuesSources();
    if (m_groups.memo.sources == listSources())
        result.list = listRules(context());
    if (m_board.memo.sources == boardSources())
        result.board = boardRules(context());
    return result;
}

void IssueDerivation::follow(quint32 row, Followers &following)
{
    Passage passage{row, m_index.rows()[row], {}, false, false};
    m_index.replace(row);
    if (!following.visible)
        return;
    passage.keyBefore = m_order.value.keys[row];
    passage.wasVisible = passes(row);
    const auto inList = placeBefore(passage, m_groups, following.list);
    const auto onBoard = placeBefore(passage, m_board, following.board);
    const auto visibleAt = placeOf(passage.keyBefore, m_visible.value, m_order.value.keys);
    followOrder(passage);
    followPasses(row);
    passage.isVisible = passes(row);
    followVisible(passage, visibleAt, following);
    followSections(passage, inList, m_groups, following.list, following.listSteps);
    followSections(passage, onBoard, m_board, following.board, following.boardSteps);
}

std::optional<IssuePlace>
IssueDerivation::placeBefore(const Passage &passage, const Grouped &grouped,
                             const std::optional<SectionRules> &rules) const
{
    if (!rules || !passage.wasVisible)
        return std::nullopt;
    return grouped.memo.value.find(passage.before.*rules->number, passage.keyBefore,
                                   m_order.value.keys);
}

void IssueDerivation::followOrder(const Passage &passage)
{
    auto &[keys, rows] = m_order.value;
    const auto &issue = *m_index.issues()[passage.row];
    const auto from = placeOf(passage.keyBefore, rows, keys);
    const auto key = m_inputs.isRecap() ? changedRecapKey(passage.keyBefore, issue)
                                        : changedKey(passage.keyBefore, issue, m_inputs.ordering);
    // The place is told among the others, which the issue's own old place must not disturb.
    const auto behind = placeOf(key, rows, keys);
    keys[passage.row] = key;
    moveRow(rows, from, behind > from ? behind - 1 : behind);
}

void IssueDerivation::followPasses(quint32 row)
{
    m_filter.value[row] = passesFilter(row, m_index, m_inputs);
    m_search.value.hits[row] = m_index.texts().contains(row, m_search.value.needle);
}

bool IssueDerivation::passes(quint32 row) const
{
    return (m_filter.value[row] & m_search.value.hits[row]) != 0;
}

void IssueDerivation::followVisible(const Passage &passage, qsizetype from,
                                    const Followers &following)
{
    const auto &issue = m_index.issues()[passage.row];
    auto &rows = m_visible.value;
    auto &issues = m_visibleIssues.value;
    if (passage.wasVisible) {
        rows.erase(rows.begin() + from);
        if (following.visibleIssues)
            issues.removeAt(from);
        if (following.shapes)
            m_shapes.value.remove(*issue);
    }
    if (!passage.isVisible)
        return;
    const auto to = placeOf(m_order.value.keys[passage.row], rows, m_order.value.keys);
    rows.insert(rows.begin() + to, passage.row);
    if (following.visibleIssues)
        issues.insert(to, issue);
    if (following.shapes)
        m_shapes.value.add(*issue);
}

void IssueDerivation::followSections(const Passage &passage, const std::optional<IssuePlace> &from,
                                     Grouped &grouped, const std::optional<SectionRules> &rules,
                                     IssueGroupSteps &steps)
{
    if (!rules)
        return;
    using Entry = IssueSections::Entry;
    const auto entry =
        passage.isVisible
            ? std::optional(Entry{passage.row, m_index.rows()[passage.row].*rules->number,
                                  m_index.issues()[passage.row]})
            : std::nullopt;
    std::ranges::move(grouped.memo.value.replace(from, entry, m_order.value.keys, *rules),
                      std::back_inserter(steps));
}

/// What has followed is what its computation would give now.
void IssueDerivation::settle(Followers &following)
{
    ++m_versions[Issues];
    if (!following.index)
        return;
    noteFollowed(m_indexMemo, indexSources());
    if (!following.visible)
        return;
    noteFollowed(m_order, orderSources());
    noteFollowed(m_filter, filterSources());
    noteFollowed(m_search, searchSources());
    noteFollowed(m_visible, visibleSources());
    if (following.visibleIssues)
        noteFollowed(m_visibleIssues, visibleIssuesSources());
    if (following.shapes)
        noteFollowed(m_shapes, visibleIssuesSources());
    if (following.list)
        noteSteps(m_groups, listSources(), std::move(following.listSteps));
    if (following.board)
        noteSteps(m_board, boardSources(), std::move(following.boardSteps));
}

template <typename T>
void IssueDerivation::noteFollowed(Memo<T> &memo, const Sources &sources)
{
    ++memo.version;
    memo.sources = sources;
}

void IssueDerivation::noteSteps(Grouped &grouped, const Sources &sources, IssueGroupSteps steps)
{
    grouped.memo.sources = sources;
    if (steps.empty())
        return;
    auto &followed = grouped.followed;
    // Who shows the last version can follow all the same; who shows an older one has much to catch up with.
    if (followed.steps.size() + steps.size() > MostSteps)
        followed = {grouped.memo.version, {}, {}};
    ++grouped.memo.version;
    std::ranges::move(steps, std::back_inserter(followed.steps));
    followed.counts.push_back(followed.steps.size());
}

std::optional<IssueGroupSteps> IssueDerivation::groupSteps(quint64 since) const
{
    listMemo();
    return stepsSince(since, m_groups);
}

std::optional<IssueGroupSteps> IssueDerivation::boardSteps(quint64 since) const
{
    boardMemo();
    return stepsSince(since, m_board);
}

std::optional<IssueGroupSteps> IssueDerivation::stepsSince(quint64 version, const Grouped &grouped)
{
    const auto &followed = grouped.followed;
    if (version < followed.since || version > grouped.memo.version)
        return std::nullopt;
    const auto updates = version - followed.since;
    const auto taken = updates == 0 ? 0 : followed.counts[updates - 1];
    return IssueGroupSteps(followed.steps.begin() + std::ptrdiff_t(taken), followed.steps.end());
}
