#include "state/models/BoardModel.h"

#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationSamples.h"
#include "state/models/ShadowList.h"

#include <QPointer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Issue issueOf(const QString &key, const IssueStatus &status)
{
    Issue issue = sampleIssue(key);
    issue.status = status;
    return issue;
}

QList<IssueGroup> columnsOf(const QList<Issue> &issues)
{
    IssueDerivation derivation;
    derivation.setInputs(inputsOf(issues));
    return derivation.boardColumns();
}

/// "À faire" with W-3, "En cours" with W-1 and W-2.
QList<IssueGroup> twoColumns()
{
    return columnsOf({issueOf(u"W-1"_s, inProgress()), issueOf(u"W-2"_s, inProgress()),
                      issueOf(u"W-3"_s, todo())});
}

class BoardModelTest : public testing::Test
{
protected:
    QVariant at(int column, BoardModel::Role role) const { return model.index(column).data(role); }
    IssueListModel *cards(int column) const
    {
        return at(column, BoardModel::CardsRole).value<IssueListModel *>();
    }
    QStringList keysIn(int column) const
    {
        QStringList keys;
        for (const auto &row : cards(column)->rows())
            keys += row.key();
        return keys;
    }

    BoardModel model{{QLocale(u"fr_FR"_s), QTimeZone("Europe/Paris")}, minute(0)};
};

} // namespace

TEST_F(BoardModelTest, AColumnHasATitleACountAndItsStatus)
{
    model.setColumns(twoColumns());
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(at(0, BoardModel::TitleRole), u"À faire"_s);
    EXPECT_EQ(at(0, BoardModel::CountRole), 1);
    EXPECT_EQ(at(1, BoardModel::TitleRole), u"En cours"_s);
    EXPECT_EQ(at(1, BoardModel::CountRole), 2);
    EXPECT_EQ(at(1, BoardModel::StatusRole).value<IssueStatus>(), inProgress());
    EXPECT_EQ(at(0, BoardModel::AccessibleNameRole), u"À faire, 1 ticket"_s);
    EXPECT_EQ(at(1, BoardModel::AccessibleNameRole), u"En cours, 2 tickets"_s);
}

TEST_F(BoardModelTest, TheCardsOfAColumnAreItsIssuesAndNoHeader)
{
    model.setColumns(twoColumns());
    EXPECT_EQ(keysIn(0), QStringList{u"W-3"_s});
    EXPECT_EQ(keysIn(1), (QStringList{u"W-1"_s, u"W-2"_s}));
    EXPECT_EQ(cards(1)->headerRowAfter(-1), -1);
}

TEST_F(BoardModelTest, ACardThatChangesItsStatusMovesBetweenColumnsThatStay)
{
    model.setColumns(twoColumns());
    ShadowList shadow(model, BoardModel::KeyRole);
    auto *todoCards = cards(0);
    ShadowList shadowOfCards(*todoCards, IssueListModel::KeyRole);
    shadow.forget();
    model.setColumns(columnsOf(
        {issueOf(u"W-1"_s, todo()), issueOf(u"W-2"_s, inProgress()), issueOf(u"W-3"_s, todo())}));
    EXPECT_EQ(shadow.structural, 0);
    EXPECT_EQ(shadow.changedRows, (QList{0, 1}));
    EXPECT_EQ(cards(0), todoCards);
    EXPECT_EQ(keysIn(0), (QStringList{u"W-1"_s, u"W-3"_s}));
    EXPECT_EQ(keysIn(1), QStringList{u"W-2"_s});
    shadowOfCards.compare();
}

TEST_F(BoardModelTest, AColumnThatGoesTakesItsCardsAlongOnceItsViewIsGone)
{
    model.setColumns(twoColumns());
    ShadowList shadow(model, BoardModel::KeyRole);
    const QPointer<IssueListModel> gone = cards(1);
    model.setColumns(columnsOf({issueOf(u"W-3"_s, todo())}));
    EXPECT_EQ(model.rowCount(), 1);
    ASSERT_TRUE(gone);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(gone);
}

TEST_F(BoardModelTest, MarksReachTheCardsOfEveryColumn)
{
    model.setColumns(twoColumns());
    model.setFocusedKey(u"W-3"_s);
    model.setCheckedKeys({u"W-1"_s});
    model.setOpenKey(u"W-2"_s);
    EXPECT_EQ(cards(0)->index(0).data(IssueListModel::IsFocusedRole), true);
    EXPECT_EQ(cards(1)->index(0).data(IssueListModel::IsFocusedRole), false);
    EXPECT_EQ(cards(1)->index(0).data(IssueListModel::IsCheckedRole), true);
    EXPECT_EQ(cards(1)->index(1).data(IssueListModel::IsOpenRole), true);
}

TEST_F(BoardModelTest, AColumnThatComesLaterHasTheMarksToo)
{
    model.setFocusedKey(u"W-1"_s);
    model.setCheckedKeys({u"W-2"_s});
    model.setOpenKey(u"W-3"_s);
    model.setColumns(twoColumns());
    EXPECT_EQ(cards(1)->index(0).data(IssueListModel::IsFocusedRole), true);
    EXPECT_EQ(cards(1)->index(1).data(IssueListModel::IsCheckedRole), true);
    EXPECT_EQ(cards(0)->index(0).data(IssueListModel::IsOpenRole), true);
}

TEST_F(BoardModelTest, DatesAreToldFromNowInEveryColumn)
{
    Issue issue = issueOf(u"W-1"_s, todo());
    issue.dueDate = QDate(2026, 11, 3);
    model.setColumns(columnsOf({issue}));
    EXPECT_EQ(cards(0)->index(0).data(IssueListModel::DueTextRole), u"Demain"_s);
    model.setNow(minute(24 * 60));
    EXPECT_EQ(cards(0)->index(0).data(IssueListModel::DueTextRole), u"Aujourd'hui"_s);
}

TEST_F(BoardModelTest, TheColumnOfAnIssueIsFound)
{
    model.setColumns(twoColumns());
    EXPECT_EQ(model.columnOfKey(u"W-3"_s), 0);
    EXPECT_EQ(model.columnOfKey(u"W-2"_s), 1);
    EXPECT_EQ(model.columnOfKey(u"GONE-1"_s), -1);
    EXPECT_EQ(model.columnOfKey(QString()), -1);
}

TEST_F(BoardModelTest, RandomBoardsReplayExactlyAndNeverReset)
{
    ShadowList shadow(model, BoardModel::KeyRole);
    IssueDerivation derivation;
    for (quint32 seed = 0; seed < 60; ++seed) {
        derivation.setInputs(randomInputs(seed, 40));
        model.setColumns(derivation.boardColumns());
        shadow.compare();
        ASSERT_EQ(model.rowCount(), derivation.boardColumns().size());
        for (int column = 0; column < model.rowCount(); ++column)
            ASSERT_EQ(keysIn(column), keysOf(derivation.boardColumns()[column].issues));
    }
}
