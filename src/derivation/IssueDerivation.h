#pragma once

#include "derivation/IssueDerivationGroups.h"
#include "derivation/IssueDerivationInputs.h"
#include "derivation/IssueDerivationMenus.h"
#include "derivation/KeyShapes.h"
#include "derivation/VisiblePath.h"

#include <array>

/// From the issues, the filters and the display settings to what a list or a board shows. Every step is computed when it
/// is first asked for and again only when something it depends on has changed: a key typed into the search field costs a
/// search, a pass of the filters over numbers, and a grouping; what gives the same result as before goes no further.
///
/// Single issues that have become others (an edit, its undoing, a record fetched anew) are followed: what has been
/// computed is brought to where the whole computation would have led, at the cost of those issues.
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

    /// Lets go of the issues, so that whoever holds them alone then can change some in place. `takeBack` must follow at
    /// once, with the same list in which the records in `rows` may have become others with the same key and project.
    void letGo();
    /// `rows` has each row once.
    void takeBack(const IssueList &issues, const IssueRows &rows);
    /// Where the first issue with the key stands in the issues of the inputs.
    std::optional<int> rowOf(QStringView key) const;

    /// Filtered and sorted.
    const IssueList &visibleIssues() const;
    /// The sections of the list layout, without regard to what is collapsed.
    const QList<IssueGroup> &groups() const;
    /// The columns of the board layout.
    const QList<IssueGroup> &boardColumns() const;
    /// Grow whenever the sections or the columns have become others, from 1.
    quint64 groupsVersion() const { return listMemo().version; }
    quint64 boardVersion() const { return boardMemo().version; }
    /// How the sections, or the columns, came from that version to what they are; nothing where they were computed anew
    /// or changed in too many steps to be worth telling.
    std::optional<IssueGroupSteps> groupSteps(quint64 since) const;
    std::optional<IssueGroupSteps> boardSteps(quint64 since) const;
    /// The keys of what the present layout shows, in the order in which it is read; without collapsed groups in a list.
    const QStringList &flatVisibleKeys() const;
    /// The same, without a pass over them; valid until the inputs change.
    VisiblePath visiblePath() const;
    /// What the keys of the visible issues look like.
    const KeyShapes &keyShapes() const;
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
    /// The steps that followed a computation, and the version that it gave.
    struct Followed
    {
        quint64 since = 0;
        /// How many steps had been taken with each version after that.
        std::vector<std::size_t> counts;
        IssueGroupSteps steps;
    };
    struct Grouped
    {
        Memo<IssueSections> memo;
        Followed followed;
    };
    /// What was asked for and which issues contain it.
    struct Search
    {
        QByteArray needle;
        std::vector<quint8> hits;

        friend bool operator==(const Search &a, const Search &b) { return a.hits == b.hits; }
    };
    /// What has been computed of the present inputs, and so can follow a change.
    struct Followers;
    struct Passage;

    template <typename T, typename Compute>
    static const Memo<T> &refreshed(Memo<T> &memo, const Sources &sources, Compute compute);
    template <typename Compute>
    static const Memo<IssueSections> &refreshed(Grouped &grouped, const Sources &sources,
                                                Compute compute);
    static std::optional<IssueGroupSteps> stepsSince(quint64 version, const Grouped &grouped);

    void noteChange(Input input, bool hasChanged);
    quint64 version(Input input) const { return m_versions[input]; }
    IssueDerivationContext context() const;
    const Memo<quint64> &index() const;
    const Memo<IssueOrder> &order() const;
    const Memo<std::vector<quint8>> &filter() const;
    const Memo<Search> &search() const;
    const Memo<IssueRows> &visible() const;
    const Memo<IssueSections> &listMemo() const;
    const Memo<IssueSections> &boardMemo() const;
    Search searched(bool isSameIndex) const;
    /// What each step depends on at this moment.
    Sources indexSources() const;
    Sources orderSources() const;
    Sources filterSources() const;
    Sources searchSources() const;
    Sources visibleSources() const;
    Sources visibleIssuesSources() const;
    Sources listSources() const;
    Sources boardSources() const;

    // IssueDerivationChanges.cpp
    Followers followers(std::size_t rows) const;
    void follow(quint32 row, Followers &following);
    void followOrder(const Passage &passage);
    void followPasses(quint32 row);
    void followVisible(const Passage &passage, qsizetype from, const Followers &following);
    void followSections(const Passage &passage, const std::optional<IssuePlace> &from,
                        Grouped &grouped, const std::optional<SectionRules> &rules,
                        IssueGroupSteps &steps);
    std::optional<IssuePlace> placeBefore(const Passage &passage, const Grouped &grouped,
                                          const std::optional<SectionRules> &rules) const;
    bool passes(quint32 row) const;
    void settle(Followers &following);
    template <typename T>
    static void noteFollowed(Memo<T> &memo, const Sources &sources);
    static void noteSteps(Grouped &grouped, const Sources &sources, IssueGroupSteps steps);
    // Of the path
    bool isShown(const IssueGroup &group) const;
    std::optional<IssuePlace> placeIn(const IssueSections &sections, quint32 IndexedIssue::*number,
                                      const QString &key) const;

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
    mutable Memo<IssueOrder> m_order;
    mutable Memo<std::vector<quint8>> m_filter;
    mutable Memo<Search> m_search;
    mutable Memo<IssueRows> m_visible;
    mutable Memo<IssueList> m_visibleIssues;
    mutable Grouped m_groups;
    mutable Grouped m_board;
    mutable Memo<QStringList> m_keys;
    mutable Memo<KeyShapes> m_shapes;
    mutable Memo<IssueDerivationMenus> m_menus;
};
