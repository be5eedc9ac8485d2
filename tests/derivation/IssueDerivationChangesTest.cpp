#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationOracle.h"
#include "derivation/IssueDerivationSamples.h"
#include "state/models/BoardModel.h"
#include "state/models/IssueListModel.h"
#include "state/models/ShadowList.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int Issues = 60;

/// A derivation that lives through edits, with all that is fed from it, beside the same told from nothing.
class Follower
{
public:
    explicit Follower(quint32 seed) : m_dice(seed), m_inputs(randomInputs(seed, Issues))
    {
        m_derivation.setInputs(m_inputs);
    }

    const IssueDerivationInputs &inputs() const { return m_inputs; }

    void change(const IssueDerivationInputs &inputs)
    {
        m_inputs = inputs;
        m_derivation.setInputs(inputs);
    }

    /// Some records become others with their keys.
    void edit()
    {
        IssueRows rows;
        // The list is this one's alone when it is changed.
        m_derivation.letGo();
        for (int count = below(4); count >= 0 && !m_inputs.issues.isEmpty(); --count) {
            const auto row = quint32(below(int(m_inputs.issues.size())));
            if (std::ranges::find(rows, row) != rows.end())
                continue;
            rows.push_back(row);
            m_inputs.issues[row] = edited(*m_inputs.issues[row]);
        }
        m_derivation.takeBack(m_inputs.issues, rows);
    }

    /// Everything that is read is what it would be if it were told anew.
    void expectAsOracle()
    {
        EXPECT_TRUE(m_derivation.visibleIssues() == Oracle::visibleIssues(m_inputs));
        EXPECT_TRUE(m_derivation.groups() == Oracle::groups(m_inputs));
        EXPECT_TRUE(m_derivation.boardColumns() == Oracle::boardColumns(m_inputs));
        EXPECT_TRUE(m_derivation.flatVisibleKeys() == Oracle::flatVisibleKeys(m_inputs));
        EXPECT_TRUE(m_derivation.menus() == Oracle::menus(m_inputs));
        IssueDerivation fresh;
        fresh.setInputs(m_inputs);
        EXPECT_TRUE(sorted(m_derivation.keyShapes()) == sorted(fresh.keyShapes()));
        expectPath();
    }

    /// Takes the steps where there are any, as the store does.
    void feed(IssueListModel &list, BoardModel &board)
    {
        feedList(list);
        feedBoard(board);
    }

    int stepsTaken = 0;
    int listsTaken = 0;

private:
    int below(int bound) { return int(m_dice.bounded(bound)); }

    Issue edited(Issue issue)
    {
        const Issue other = *randomIssues(m_dice.generate(), 1).first();
        switch (below(8)) {
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
        case 5:
            // All of another, in memory of its own.
            issue = withIdentityOf(issue, other);
            break;
        default:
            issue.status = other.status;
            issue.updated = minute(below(50));
        }
        return issue;
    }

    static Issue withIdentityOf(const Issue &issue, Issue other)
    {
        other.key = QString(issue.key.constData(), issue.key.size());
        other.projectKey = issue.projectKey;
        return other;
    }

    static std::vector<std::tuple<QString, qsizetype, qsizetype>> sorted(const KeyShapes &keys)
    {
        std::vector<std::tuple<QString, qsizetype, qsizetype>> shapes;
        for (const auto &shape : keys.shapes())
            shapes.emplace_back(shape.project, shape.length, shape.count);
        std::ranges::sort(shapes);
        return shapes;
    }

    void expectPath()
    {
        const auto path = m_derivation.visiblePath();
        const auto keys = Oracle::flatVisibleKeys(m_inputs);
        ASSERT_EQ(path.size(), keys.size());
        for (qsizetype place = 0; place < keys.size(); ++place) {
            ASSERT_EQ(path[place], keys[place]);
            ASSERT_EQ(path.indexOf(keys[place]), place);
        }
        EXPECT_EQ(path.indexOf(u"GONE-1"_s), -1);
        for (const auto &issue : m_inputs.issues)
            EXPECT_EQ(path.indexOf(issue->key), keys.indexOf(issue->key));
    }

    void feedList(IssueListModel &list)
    {
        const auto version = m_derivation.groupsVersion();
        const auto steps = m_collapsed == m_inputs.collapsedGroups
                               ? m_derivation.groupSteps(m_listVersion)
                               : std::nullopt;
        if (steps)
            list.takeSteps(*steps, m_inputs.collapsedGroups);
        else
            list.setGroups(m_derivation.groups(), m_inputs.collapsedGroups);
        (steps ? stepsTaken : listsTaken) += version != m_listVersion;
        m_listVersion = version;
        m_collapsed = m_inputs.collapsedGroups;
    }

    void feedBoard(BoardModel &board)
    {
        const auto version = m_derivation.boardVersion();
        if (const auto steps = m_derivation.boardSteps(m_boardVersion))
            board.takeSteps(*steps);
        else
            board.setColumns(m_derivation.boardColumns());
        m_boardVersion = version;
    }

    QRandomGenerator m_dice;
    IssueDerivationInputs m_inputs;
    IssueDerivation m_derivation;
    quint64 m_listVersion = 0;
    quint64 m_boardVersion = 0;
    QSet<QString> m_collapsed;
};

UserCalendar french()
{
    return {QLocale(u"fr_FR"_s), QTimeZone("Europe/Paris")};
}

QStringList keysIn(const BoardModel &board, int column)
{
    QStringList keys;
    for (const auto &row : board.cards(column)->rows())
        keys.append(row.key);
    return keys;
}

void expectAsFed(const BoardModel &board, const IssueDerivationInputs &inputs)
{
    const auto columns = Oracle::boardColumns(inputs);
    ASSERT_EQ(board.rowCount(), columns.size());
    for (int column = 0; column < board.rowCount(); ++column) {
        EXPECT_EQ(board.rows()[column].key, columns[column].id);
        EXPECT_EQ(board.rows()[column].count, columns[column].issues.size());
        EXPECT_EQ(board.rows()[column].status, columns[column].kind.asStatus());
        EXPECT_EQ(keysIn(board, column), keysOf(columns[column].issues));
        EXPECT_TRUE(std::ranges::equal(
            board.cards(column)->rows(), columns[column].issues, {},
            [](const auto &row) { return *row.issue(); },
            [](const auto &issue) { return *issue; }));
    }
}

} // namespace

TEST(IssueDerivationChanges, ManyEditsReloadsAndSettingsGiveWhatTheNaiveDerivationGives)
{
    for (quint32 seed = 0; seed < 40; ++seed) {
        SCOPED_TRACE(seed);
        Follower follower(seed);
        for (quint32 turn = 0; turn < 40; ++turn) {
            SCOPED_TRACE(turn);
            if (turn % 5 == 4)
                follower.change(withOneSettingOf(
                    follower.inputs(), randomInputs(seed * 100 + turn, Issues), seed + turn));
            else
                follower.edit();
            follower.expectAsOracle();
            ASSERT_FALSE(testing::Test::HasFailure());
        }
    }
}

TEST(IssueDerivationChanges, TheModelsFollowByStepsAndReplayExactly)
{
    int stepsTaken = 0;
    for (quint32 seed = 0; seed < 30; ++seed) {
        SCOPED_TRACE(seed);
        IssueListModel list(french(), minute(0));
        BoardModel board(french(), minute(0));
        const ShadowList shadow(list, IssueListModel::KeyRole);
        const ShadowList columns(board, BoardModel::KeyRole);
        Follower follower(seed);
        for (quint32 turn = 0; turn < 40; ++turn) {
            SCOPED_TRACE(turn);
            if (turn % 8 == 7)
                follower.change(withOneSettingOf(
                    follower.inputs(), randomInputs(seed * 100 + turn, Issues), seed + turn));
            else
                follower.edit();
            follower.feed(list, board);
            shadow.compare();
            columns.compare();
            const auto rows =
                issueListRows(Oracle::groups(follower.inputs()), follower.inputs().collapsedGroups);
            ASSERT_EQ(list.rows(), rows);
            for (int row = 0; row < list.rowCount(); ++row) {
                ASSERT_EQ(list.rowOf(rows[row].key), row);
                ASSERT_EQ(list.headerRowOf(row) == row, rows[row].header() != nullptr);
            }
            expectAsFed(board, follower.inputs());
            ASSERT_FALSE(testing::Test::HasFailure());
        }
        stepsTaken += follower.stepsTaken;
    }
    EXPECT_GT(stepsTaken, 200) << "or too little was tried";
}
