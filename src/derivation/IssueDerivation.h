#pragma once

#include "derivation/IssueDerivationGroups.h"
#include "derivation/IssueDerivationInputs.h"
#include "derivation/IssueDerivationMenus.h"
#include "derivation/KeyShapes.h"
#include "derivation/Memo.h"
#include "derivation/VisiblePath.h"

#include <array>

/// Computes what a list or a board shows from the issues, the filters and the display settings. Each step is computed
/// when it is first read, and again only when one of its dependencies has changed. If a step gives the same result as
/// before, the steps that depend on it are not computed again. For example, a change of the search text costs a search
/// and a grouping. A changed issue costs one computation of all steps, about 0.1 ms for 300 issues and 3 ms for 10,000.
///
/// When several issues have the same key, only the first is shown.
class IssueDerivation
{
public:
    /// Compares the inputs with the previous ones. The change takes effect at the next read.
    void setInputs(const IssueDerivationInputs &inputs);
    const IssueDerivationInputs &inputs() const { return m_inputs; }

    /// The position of the first issue with the key in the issues of the inputs; nothing if there is none.
    std::optional<int> rowOf(QStringView key) const;

    /// Filtered and sorted.
    const IssueList &visibleIssues() const { return visibleMemo().value; }
    /// How many issues are visible; cheaper than the list of them.
    qsizetype visibleCount() const { return qsizetype(visible().value.size()); }
    /// The sections of the list layout, whether or not they are collapsed.
    const QList<IssueGroup> &groups() const { return listMemo().value; }
    /// The columns of the board layout.
    const QList<IssueGroup> &boardColumns() const { return boardMemo().value; }
    /// The keys of the issues that the current layout shows, in reading order. In a list, collapsed groups are left
    /// out.
    const VisiblePath &visiblePath() const;
    const QStringList &flatVisibleKeys() const { return visiblePath().keys(); }
    /// The shapes of the keys of the visible issues.
    const KeyShapes &keyShapes() const;
    const IssueDerivationMenus &menus() const { return menusMemo().value; }
    /// Version numbers, from 1: each grows whenever the value in its name changes.
    quint64 visibleVersion() const { return visibleMemo().version; }
    quint64 groupsVersion() const { return listMemo().version; }
    quint64 boardVersion() const { return boardMemo().version; }
    quint64 menusVersion() const { return menusMemo().version; }
    /// The texts of all issues, in the order of the inputs.
    const SearchTexts &searchTexts() const;

private:
    /// The inputs that steps depend on. `m_versions` has a number for each, which grows when the input changes.
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
    /// The search text and which issues contain it.
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
    /// The sources of values that are computed from the visible issues.
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
    mutable Memo<quint64> m_indexMemo{"index"};
    mutable Memo<IssueRows> m_order{"order"};
    mutable Memo<std::vector<quint8>> m_filter{"filter"};
    mutable Memo<Search> m_search{"search"};
    mutable Memo<IssueRows> m_visible{"visible rows"};
    mutable Memo<IssueList> m_visibleIssues{"visible issues"};
    mutable Memo<QList<IssueGroup>> m_groups{"groups"};
    mutable Memo<QList<IssueGroup>> m_board{"board"};
    mutable Memo<VisiblePath> m_path{"visible keys"};
    mutable Memo<KeyShapes> m_shapes{"key shapes"};
    mutable Memo<IssueDerivationMenus> m_menus{"menus"};
};
