#pragma once

#include "state/IssueDerivationGroups.h"
#include "state/IssueDerivationInputs.h"
#include "state/IssueDerivationMenus.h"

#include <array>

/// From the issues, the filters and the display settings to what a list or a board shows. Every step is computed when it
/// is first asked for and again only when something it depends on has changed: a key typed into the search field costs a
/// search, a pass of the filters over numbers, and a grouping; what gives the same result as before goes no further.
class IssueDerivation
{
public:
    enum class Step {
        Index,
        Order,
        Filter,
        Search,
        Visible,
        VisibleIssues,
        Groups,
        Board,
        Keys,
        Menus,
        Count
    };

    /// Compares with the inputs before; takes effect at the next read.
    void setInputs(const IssueDerivationInputs &inputs);
    const IssueDerivationInputs &inputs() const { return m_inputs; }

    /// Filtered and sorted.
    const IssueList &visibleIssues() const;
    /// The sections of the list layout, without regard to what is collapsed.
    const QList<IssueGroup> &groups() const;
    /// The columns of the board layout.
    const QList<IssueGroup> &boardColumns() const;
    /// Grow whenever the sections or the columns have become others, from 1.
    quint64 groupsVersion() const { return listMemo().version; }
    quint64 boardVersion() const { return boardMemo().version; }
    /// The keys of what the present layout shows, in the order in which it is read; without collapsed groups in a list.
    const QStringList &flatVisibleKeys() const;
    const IssueDerivationMenus &menus() const;
    /// The texts of all issues, in the order of the inputs.
    const SearchTexts &searchTexts() const;

    /// How often the step was computed.
    int timesComputed(Step step) const;
    /// How many issues had their texts folded.
    qsizetype foldedIssues() const { return m_index.foldedIssues(); }

private:
    /// The inputs that steps depend on, each with a number that grows when it changes.
    enum Input {
        Issues,
        Recap,
        Project,
        Filters,
        Text,
        OrderingInput,
        GroupingInput,
        Layout,
        Closed,
        Collapsed,
        Me,
        Projects,
        Statuses,
        Locale,
        InputCount
    };
    using Sources = std::array<quint64, 8>;
    template <typename T>
    struct Memo
    {
        T value{};
        /// Grows when the value changes.
        quint64 version = 0;
        Sources sources{};
        int computations = 0;
    };

    template <typename T, typename Compute>
    static const Memo<T> &refreshed(Memo<T> &memo, const Sources &sources, Compute compute);

    void noteChange(Input input, bool hasChanged);
    quint64 version(Input input) const { return m_versions[input]; }
    IssueDerivationContext context() const;
    const Memo<quint64> &index() const;
    const Memo<IssueRows> &order() const;
    const Memo<std::vector<quint8>> &filter() const;
    const Memo<std::vector<quint8>> &search() const;
    const Memo<IssueRows> &visible() const;
    const Memo<QList<IssueGroup>> &listMemo() const;
    const Memo<QList<IssueGroup>> &boardMemo() const;

    IssueDerivationInputs m_inputs;
    StatusRanks m_ranks;
    NameOrder m_names{QLocale()};
    std::array<quint64, InputCount> m_versions = [] {
        std::array<quint64, InputCount> first{};
        first.fill(1);
        return first;
    }();
    mutable IssueIndex m_index;
    mutable Memo<quint64> m_indexMemo;
    mutable Memo<IssueRows> m_order;
    mutable Memo<std::vector<quint8>> m_filter;
    mutable Memo<std::vector<quint8>> m_search;
    mutable Memo<IssueRows> m_visible;
    mutable Memo<IssueList> m_visibleIssues;
    mutable Memo<QList<IssueGroup>> m_groups;
    mutable Memo<QList<IssueGroup>> m_board;
    mutable Memo<QStringList> m_keys;
    mutable Memo<IssueDerivationMenus> m_menus;
};
