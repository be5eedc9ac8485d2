#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationOracle.h"
#include "derivation/IssueDerivationSamples.h"
#include "state/models/BoardModel.h"
#include "state/models/IssueListModel.h"
#include "state/models/ShadowList.h"

#include <QPersistentModelIndex>
#include <QRandomGenerator>

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int Issues = 60;

/// Inputs whose issues and settings are changed repeatedly.
class EditedInputs
{
public:
    explicit EditedInputs(quint32 seed)
        : m_seed(seed), m_dice(seed), m_inputs(randomInputs(seed, Issues))
    {
    }

    const IssueDerivationInputs &inputs() const { return m_inputs; }

    /// Changes up to four records. Sometimes it also removes an issue, or inserts a second record with the same key.
    void edit()
    {
        auto &issues = m_inputs.issues;
        for (int count = below(4); count >= 0 && !issues.isEmpty(); --count) {
            const int row = below(int(issues.size()));
            issues[row] = edited(*issues[row]);
        }
        if (below(6) == 0 && !issues.isEmpty())
            issues.insert(below(int(issues.size())), edited(*issues[below(int(issues.size()))]));
        if (below(6) == 0 && issues.size() > Issues / 2)
            issues.removeAt(below(int(issues.size())));
    }

    void changeASetting(quint32 turn)
    {
        m_inputs =
            withOneSettingOf(m_inputs, randomInputs(m_seed * 100 + turn, Issues), m_seed + turn);
    }

private:
    int below(int bound) { return int(m_dice.bounded(bound)); }

    Issue edited(Issue issue)
    {
        const Issue other = *randomIssues(m_dice.generate(), 1).first();
        switch (below(7)) {
        case 0:
            issue.assignee = other.assignee;
            break;
        case 1:
            issue.priority = other.priority;
            break;
        case 2:
            issue.summary += u" Été"_s;
            break;
        case 3:
            issue.labels = other.labels;
            break;
        case 4:
            issue.activity = other.activity;
            break;
        default:
            issue.status = other.status;
            issue.updated = minute(below(50));
        }
        return issue;
    }

    quint32 m_seed;
    QRandomGenerator m_dice;
    IssueDerivationInputs m_inputs;
};

/// The shapes of the keys of a list that is prepared for the first time.
KeyShapes keyShapesOf(const IssueList &issues)
{
    IssueIndex index;
    index.update(issues);
    IssueRows rows(index.rows().size());
    std::iota(rows.begin(), rows.end(), 0);
    return {rows, index};
}

/// All results of the derivation are equal to those of the reference implementation.
void expectAsOracle(const IssueDerivation &derivation)
{
    const auto &inputs = derivation.inputs();
    EXPECT_TRUE(derivation.visibleIssues() == Oracle::visibleIssues(inputs));
    EXPECT_TRUE(derivation.groups() == Oracle::groups(inputs));
    EXPECT_TRUE(derivation.boardColumns() == Oracle::boardColumns(inputs));
    EXPECT_TRUE(derivation.menus() == Oracle::menus(inputs));
    EXPECT_EQ(derivation.keyShapes(), keyShapesOf(Oracle::visibleIssues(inputs)));
    const auto keys = Oracle::flatVisibleKeys(inputs);
    EXPECT_EQ(derivation.flatVisibleKeys(), keys);
    EXPECT_EQ(derivation.visiblePath().indexOf(u"GONE-1"_s), -1);
    for (const auto &issue : inputs.issues)
        EXPECT_EQ(derivation.visiblePath().indexOf(issue->key), keys.indexOf(issue->key));
}

UserCalendar french()
{
    return {QLocale(u"fr_FR"_s), QTimeZone("Europe/Paris")};
}

/// The models of both layouts, with copies that are updated only through the signals of the models.
class ShadowedModels
{
public:
    ShadowedModels()
    {
        const auto ask = [this] { expectHeaders(); };
        for (const auto signal : {&IssueListModel::rowsInserted, &IssueListModel::rowsRemoved})
            QObject::connect(&m_list, signal, &m_context, ask);
        QObject::connect(&m_list, &IssueListModel::rowsMoved, &m_context, ask);
    }

    void feed(const IssueDerivation &derivation)
    {
        m_list.setGroups(derivation.groups(), derivation.inputs().collapsedGroups);
        m_board.setColumns(derivation.boardColumns());
        for (int column = 0; column < m_board.rowCount(); ++column) {
            auto *cards = m_board.cards(column);
            auto &shadow = m_cardShadows[cards];
            if (!shadow)
                shadow = std::make_unique<ShadowList>(*cards, IssueListModel::KeyRole);
        }
    }

    void expectAsOracle(const IssueDerivationInputs &inputs)
    {
        m_listShadow.compare();
        m_columnShadow.compare();
        for (const auto &[cards, shadow] : m_cardShadows)
            shadow->compare();
        ASSERT_EQ(m_list.rows(),
                  issueListRows(Oracle::groups(inputs), inputs.collapsedGroups).rows);
        for (int row = 0; row < m_list.rowCount(); ++row)
            ASSERT_EQ(m_list.rowOf(m_list.rows()[row].key()), row);
        expectHeaders();
        const auto columns = Oracle::boardColumns(inputs);
        ASSERT_EQ(m_board.rowCount(), columns.size());
        for (int column = 0; column < m_board.rowCount(); ++column)
            expectColumn(column, columns[column]);
    }

    /// The list rows that show issues, for a later comparison.
    QList<QPersistentModelIndex> issueRows() const
    {
        QList<QPersistentModelIndex> rows;
        for (int row = 0; row < m_list.rowCount(); ++row) {
            if (m_list.rows()[row].issue())
                rows.append(m_list.index(row));
        }
        return rows;
    }

    IssueListModel &list() { return m_list; }

private:
    void expectHeaders() const
    {
        for (int row = 0; row < m_list.rowCount(); ++row)
            ASSERT_EQ(m_list.headerRowOf(row) == row, m_list.rows()[row].header() != nullptr);
    }

    void expectColumn(int column, const IssueGroup &group) const
    {
        EXPECT_EQ(m_board.rows()[column].key, group.id);
        EXPECT_EQ(m_board.rows()[column].count, group.issues.size());
        EXPECT_EQ(m_board.rows()[column].status, group.kind.asStatus());
        const auto &rows = m_board.cards(column)->rows();
        ASSERT_EQ(rows.size(), group.issues.size());
        for (qsizetype row = 0; row < rows.size(); ++row)
            EXPECT_TRUE(*rows[row].issue() == *group.issues[row]);
    }

    IssueListModel m_list{french(), minute(0)};
    BoardModel m_board{french(), minute(0)};
    ShadowList m_listShadow{m_list, IssueListModel::KeyRole};
    ShadowList m_columnShadow{m_board, BoardModel::KeyRole};
    std::map<IssueListModel *, std::unique_ptr<ShadowList>> m_cardShadows;
    QObject m_context;
};

} // namespace

TEST(IssueDerivationChanges, ManyEditsReloadsAndSettingsGiveWhatTheNaiveDerivationGives)
{
    for (quint32 seed = 0; seed < 40; ++seed) {
        SCOPED_TRACE(seed);
        EditedInputs source(seed);
        IssueDerivation derivation;
        for (quint32 turn = 0; turn < 40; ++turn) {
            SCOPED_TRACE(turn);
            turn % 5 == 4 ? source.changeASetting(turn) : source.edit();
            derivation.setInputs(source.inputs());
            expectAsOracle(derivation);
            ASSERT_FALSE(testing::Test::HasFailure());
        }
    }
}

TEST(IssueDerivationChanges, TheModelsShowTheDerivedListsAndReplayExactly)
{
    for (quint32 seed = 0; seed < 30; ++seed) {
        SCOPED_TRACE(seed);
        EditedInputs source(seed);
        IssueDerivation derivation;
        ShadowedModels models;
        for (quint32 turn = 0; turn < 40; ++turn) {
            SCOPED_TRACE(turn);
            turn % 8 == 7 ? source.changeASetting(turn) : source.edit();
            derivation.setInputs(source.inputs());
            models.feed(derivation);
            models.expectAsOracle(source.inputs());
            ASSERT_FALSE(testing::Test::HasFailure());
        }
    }
}

TEST(IssueDerivationChanges, ARowThatIsShownBeforeAndAfterAnEditIsNeverTakenOut)
{
    int moved = 0;
    for (quint32 seed = 0; seed < 30; ++seed) {
        SCOPED_TRACE(seed);
        EditedInputs source(seed);
        IssueDerivation derivation;
        derivation.setInputs(source.inputs());
        ShadowedModels models;
        models.feed(derivation);
        for (quint32 turn = 0; turn < 40; ++turn) {
            const auto rows = models.issueRows();
            QStringList keys;
            QList<int> places;
            for (const auto &row : rows) {
                keys.append(row.data(IssueListModel::KeyRole).toString());
                places.append(row.row());
            }
            source.edit();
            derivation.setInputs(source.inputs());
            models.feed(derivation);
            for (qsizetype at = 0; at < rows.size(); ++at) {
                const int now = models.list().rowOfKey(keys[at]);
                EXPECT_EQ(rows[at].row(), now) << turn << ' ' << keys[at].toStdString();
                moved += now >= 0 && now != places[at];
            }
            ASSERT_FALSE(testing::Test::HasFailure());
        }
    }
    EXPECT_GT(moved, 1000) << "or too little was tried";
}
