#pragma once

#include "derivation/IssueDerivationGroups.h"
#include "derivation/IssueDerivationInputs.h"
#include "derivation/IssueDerivationMenus.h"
#include "derivation/KeyShapes.h"
#include "derivation/Memo.h"
#include "derivation/VisiblePath.h"

#include <array>

/// From the issues, the filters and the display settings to what a list or a board shows. Every step is computed when it
/// is first asked for and again only when something it depends on has changed: a key typed into the search field costs a
/// search, a pass of the filters over numbers, and a grouping; what gives the same result as before goes no further. An
/// issue that has become another costs one computation of all steps, about 0.1 ms for 300 issues and 3 ms for 10,000.
///
/// Of issues that have the same key only the first is ever shown.
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

    /// Where the first issue with the key stands in the issues of the inputs.
    std::optional<int> rowOf(QStringView key) const;

    /// Filtered and sorted.
    const IssueList &visibleIssues() const { return visibleMemo().value; }
    /// The sections of the list layout, without regard to what is collapsed.
    const QList<IssueGroup> &groups() const { return listMemo().value; }
    /// The columns of the board layout.
    const QList<IssueGroup> &boardColumns() const { return boardMemo().value; }
    /// The keys of what the present layout shows, in the order in which it is read; without collapsed groups in a list.
    const VisiblePath &visiblePath() const;
    const QStringList &flatVisibleKeys() const { return visiblePath().keys(); }
    /// What the keys of the visible issues look like.
    const KeyShapes &keyShapes() const;
    const IssueDerivationMenus &menus() const { return menusMemo().value; }
    /// Each grows, from 1, whenever what it is named for has become another.
    quint64 visibleVersion() const { return visibleMemo().version; }
    quint64 groupsVersion() const { return listMemo().version; }
    quint64 boardVersion() const { return boardMemo().version; }
    quint64 menusVersion() const { return menusMemo().version; }
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
    using Sources = Memo<int>::Sources;
    /// What was asked for and which issues contain it.
    struct Search
    {
        QByteArray needle;
        std::vector<quint8> hits;

        friend bool operator==(const Search &a, const Search &b) { return a.hits == b.hits; }
    };

    void noteChange(Input input, bool hasChanged);
    quint64 version(Input input) const { return m_versions[input]; }
    IssueDerivationContext context() const;
    const Memo<quint64> &index() const;
    const Memo<IssueRows> &order() const;
    const Memo<std::vector<quint8>> &filter() const;
    const Memo<Search> &search() const;
    const Memo<IssueRows> &visible() const;
    const Memo<IssueList> &visibleMemo() const;
    const Memo<QList<IssueGroup>> &listMemo() const;
    const Memo<QList<IssueGroup>> &boardMemo() const;
    const Memo<IssueDerivationMenus> &menusMemo() const;
    Search searched(bool isSameIndex) const;
    /// What the visible issues depend on, whatever is made of them.
    Sources visibleSources() const { return {version(Issues), m_visible.version}; }

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
    mutable Memo<Search> m_search;
    mutable Memo<IssueRows> m_visible;
    mutable Memo<IssueList> m_visibleIssues;
    mutable Memo<QList<IssueGroup>> m_groups;
    mutable Memo<QList<IssueGroup>> m_board;
    mutable Memo<VisiblePath> m_path;
    mutable Memo<KeyShapes> m_shapes;
    mutable Memo<IssueDerivationMenus> m_menus;
};
