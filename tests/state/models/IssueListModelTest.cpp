#include "state/models/IssueListModel.h"

#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationSamples.h"
#include "state/models/ShadowList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

UserCalendar french()
{
    return {QLocale(u"fr_FR"_s), QTimeZone("Europe/Paris")};
}

Issue issueOf(const QString &key, const IssueStatus &status)
{
    Issue issue = sampleIssue(key);
    issue.status = status;
    return issue;
}

QList<IssueGroup> groupsOf(const QList<Issue> &issues)
{
    IssueDerivation derivation;
    derivation.setInputs(inputsOf(issues));
    return derivation.groups();
}

/// "En cours" with W-1 and W-2, "À faire" with W-3.
QList<IssueGroup> twoGroups()
{
    return groupsOf({issueOf(u"W-1"_s, inProgress()), issueOf(u"W-2"_s, inProgress()),
                     issueOf(u"W-3"_s, todo())});
}

class IssueListModelTest : public testing::Test
{
protected:
    QVariant at(int row, IssueListModel::Role role) const { return model.index(row).data(role); }

    QStringList rowKeys() const
    {
        QStringList keys;
        for (const auto &row : model.rows())
            keys.append(row.key());
        return keys;
    }

    IssueListModel model{french(), minute(0)};
};

} // namespace

TEST_F(IssueListModelTest, HeadersStandBeforeTheirIssues)
{
    model.setGroups(twoGroups(), {});
    EXPECT_EQ(rowKeys(),
              (QStringList{u"h:s:inprogress"_s, u"W-1"_s, u"W-2"_s, u"h:s:todo"_s, u"W-3"_s}));
    EXPECT_EQ(at(0, IssueListModel::KindRole).value<IssueListEnums::RowKind>(),
              IssueListEnums::RowKind::Header);
    EXPECT_EQ(at(1, IssueListModel::KindRole).value<IssueListEnums::RowKind>(),
              IssueListEnums::RowKind::Issue);
    EXPECT_EQ(at(1, IssueListModel::IssueRole).value<Issue>().key, u"W-1"_s);
    EXPECT_EQ(at(0, IssueListModel::HeaderRole).value<IssueListHeader>().title, u"En cours"_s);
    EXPECT_EQ(at(0, IssueListModel::HeaderRole).value<IssueListHeader>().count, 2);
}

TEST_F(IssueListModelTest, ACollapsedGroupKeepsItsHeaderAndCount)
{
    model.setGroups(twoGroups(), {});
    ShadowList shadow(model, IssueListModel::KeyRole);
    shadow.forget();
    model.setGroups(twoGroups(), {u"s:inprogress"_s});
    EXPECT_EQ(rowKeys(), (QStringList{u"h:s:inprogress"_s, u"h:s:todo"_s, u"W-3"_s}));
    EXPECT_EQ(shadow.structural, 1);
    // First the header changes, then the positions of all rows.
    EXPECT_EQ(shadow.changedRows, (QList{0, 0, 1, 2}));
    const auto header = model.headerAt(0);
    EXPECT_TRUE(header.isCollapsed);
    EXPECT_EQ(header.count, 2);
    EXPECT_EQ(header.accessibleName(), u"En cours, 2 tickets, replié"_s);
}

TEST_F(IssueListModelTest, AStatusChangeMovesTheRow)
{
    model.setGroups(twoGroups(), {});
    ShadowList shadow(model, IssueListModel::KeyRole);
    const QPersistentModelIndex second = model.index(2);
    shadow.forget();
    model.setGroups(groupsOf({issueOf(u"W-1"_s, inProgress()), issueOf(u"W-2"_s, todo()),
                              issueOf(u"W-3"_s, todo())}),
                    {});
    EXPECT_EQ(shadow.structural, 1);
    EXPECT_EQ(shadow.moves, 1);
    EXPECT_EQ(second.row(), 3);
}

TEST_F(IssueListModelTest, MovingTheFocusTouchesTwoRows)
{
    model.setGroups(twoGroups(), {});
    model.setFocusedKey(u"W-1"_s);
    ShadowList shadow(model, IssueListModel::KeyRole);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    shadow.forget();
    model.setFocusedKey(u"W-3"_s);
    EXPECT_EQ(shadow.changedRows, (QList{1, 4}));
    EXPECT_EQ(shadow.structural, 0);
    EXPECT_EQ(changed.first().at(2).value<QList<int>>(), QList<int>{IssueListModel::IsFocusedRole});
    EXPECT_EQ(at(1, IssueListModel::IsFocusedRole), false);
    EXPECT_EQ(at(4, IssueListModel::IsFocusedRole), true);
    model.setFocusedKey({});
    EXPECT_EQ(at(4, IssueListModel::IsFocusedRole), false);
}

TEST_F(IssueListModelTest, FocusOnAnIssueThatIsNotShownTouchesNothing)
{
    model.setGroups(twoGroups(), {});
    ShadowList shadow(model, IssueListModel::KeyRole);
    shadow.forget();
    model.setFocusedKey(u"GONE-1"_s);
    EXPECT_EQ(shadow.changes, 0);
}

TEST_F(IssueListModelTest, CheckingTouchesOnlyTheRowsThatDiffer)
{
    model.setGroups(twoGroups(), {});
    model.setCheckedKeys({u"W-1"_s, u"W-2"_s});
    ShadowList shadow(model, IssueListModel::KeyRole);
    shadow.forget();
    model.setCheckedKeys({u"W-2"_s, u"W-3"_s, u"GONE-1"_s});
    EXPECT_EQ(shadow.changedRows, (QList{1, 4}));
    EXPECT_EQ(at(1, IssueListModel::IsCheckedRole), false);
    EXPECT_EQ(at(2, IssueListModel::IsCheckedRole), true);
    EXPECT_EQ(at(4, IssueListModel::IsCheckedRole), true);
}

TEST_F(IssueListModelTest, TheOpenIssueIsMarked)
{
    model.setGroups(twoGroups(), {});
    model.setOpenKey(u"W-2"_s);
    EXPECT_EQ(at(2, IssueListModel::IsOpenRole), true);
    EXPECT_EQ(at(1, IssueListModel::IsOpenRole), false);
}

TEST_F(IssueListModelTest, RowsKnowTheirHeaderAndTheNext)
{
    model.setGroups(twoGroups(), {});
    EXPECT_EQ(model.headerRowOf(0), 0);
    EXPECT_EQ(model.headerRowOf(2), 0);
    EXPECT_EQ(model.headerRowOf(3), 3);
    EXPECT_EQ(model.headerRowOf(4), 3);
    EXPECT_EQ(model.headerRowOf(5), -1);
    EXPECT_EQ(model.headerRowOf(-1), -1);
    EXPECT_EQ(model.headerRowAfter(-1), 0);
    EXPECT_EQ(model.headerRowAfter(0), 3);
    EXPECT_EQ(model.headerRowAfter(3), -1);
    EXPECT_EQ(model.headerAt(1), IssueListHeader());
    EXPECT_EQ(model.headerAt(99), IssueListHeader());
}

TEST_F(IssueListModelTest, TheHeadersAboveARowAreCounted)
{
    EXPECT_EQ(model.headersAbove(0), 0);
    model.setGroups(twoGroups(), {});
    EXPECT_EQ(model.headersAbove(0), 0);
    EXPECT_EQ(model.headersAbove(1), 1);
    EXPECT_EQ(model.headersAbove(3), 1);
    EXPECT_EQ(model.headersAbove(4), 2);
    EXPECT_EQ(model.headersAbove(5), 2);
}

TEST_F(IssueListModelTest, RowsAndKeysAreFoundFromEachOther)
{
    model.setGroups(twoGroups(), {});
    EXPECT_EQ(model.rowOfKey(u"W-3"_s), 4);
    EXPECT_EQ(model.rowOfKey(u"h:s:todo"_s), -1);
    EXPECT_EQ(model.rowOfKey(u"GONE-1"_s), -1);
    EXPECT_EQ(model.index(4).data(IssueListModel::KeyRole), u"W-3"_s);
}

TEST_F(IssueListModelTest, ARowSaysAWholeSentence)
{
    Issue issue = issueOf(u"WEB-203"_s, todo());
    issue.summary = u"La recherche globale ignore les accents"_s;
    EXPECT_EQ(accessibleSentence(issue),
              u"WEB-203, La recherche globale ignore les accents, À faire, "
              "aucune priorité, non assigné"_s);
    issue.priority = priority(u"High"_s);
    issue.assignee = user(u"u"_s, u"Noam Talvère"_s);
    model.setGroups(groupsOf({issue}), {});
    EXPECT_EQ(
        at(1, IssueListModel::AccessibleNameRole),
        u"WEB-203, La recherche globale ignore les accents, À faire, priorité Haute, assigné à Noam Talvère, 1 sur 1"_s);
    EXPECT_EQ(at(0, IssueListModel::AccessibleNameRole), u"À faire, 1 ticket"_s);
}

TEST_F(IssueListModelTest, ARowSaysItsLabelsItsDueDateAndThatItIsLate)
{
    Issue issue = issueOf(u"W-1"_s, todo());
    issue.summary = u"Résumé"_s;
    issue.labels = {u"auth"_s};
    issue.dueDate = QDate(2026, 11, 3);
    model.setGroups(groupsOf({issue}), {});
    model.setNow(QDateTime({2026, 11, 2}, {12, 0}, QTimeZone::utc()));
    const QString start = u"W-1, Résumé, À faire, aucune priorité, non assigné, "_s;
    EXPECT_EQ(at(1, IssueListModel::AccessibleNameRole),
              start + u"étiquette auth, échéance le 3 novembre, 1 sur 1"_s);

    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setNow(QDateTime({2026, 11, 4}, {12, 0}, QTimeZone::utc()));
    EXPECT_EQ(at(1, IssueListModel::AccessibleNameRole),
              start + u"étiquette auth, échéance le 3 novembre, en retard, 1 sur 1"_s);
    ASSERT_EQ(changed.size(), 1);
    EXPECT_TRUE(
        changed[0][2].value<QList<int>>().contains(int(IssueListModel::AccessibleNameRole)));

    issue.labels = {u"auth"_s, u"ios"_s};
    issue.dueDate = QDate(2027, 1, 5);
    model.setGroups(groupsOf({issue}), {});
    EXPECT_EQ(at(1, IssueListModel::AccessibleNameRole),
              start + u"étiquettes auth et ios, échéance le 5 janvier 2027, 1 sur 1"_s);
}

TEST_F(IssueListModelTest, DatesAreToldFromNow)
{
    Issue issue = issueOf(u"W-1"_s, todo());
    issue.updated = minute(0);
    issue.dueDate = QDate(2026, 11, 3);
    model.setGroups(groupsOf({issue}), {});
    model.setNow(minute(5));
    EXPECT_EQ(at(1, IssueListModel::UpdatedTextRole), u"5 min"_s);
    EXPECT_EQ(at(1, IssueListModel::DueTextRole), u"Demain"_s);
    EXPECT_EQ(at(1, IssueListModel::DueTooltipRole), u"Échéance : 3 novembre 2026"_s);
    ShadowList shadow(model, IssueListModel::KeyRole);
    shadow.forget();
    model.setNow(minute(6));
    EXPECT_EQ(at(1, IssueListModel::UpdatedTextRole), u"6 min"_s);
    EXPECT_EQ(shadow.changes, 1);
}

TEST_F(IssueListModelTest, AnIssueDueYesterdayIsOverdueUnlessItIsClosed)
{
    Issue open = issueOf(u"W-1"_s, todo());
    open.dueDate = QDate(2026, 11, 1);
    Issue closed = issueOf(u"W-2"_s, done());
    closed.dueDate = open.dueDate;
    Issue today = issueOf(u"W-3"_s, todo());
    today.dueDate = QDate(2026, 11, 2);
    model.setGroups(groupsOf({open, closed, today}), {});
    EXPECT_EQ(at(model.rowOfKey(u"W-1"_s), IssueListModel::IsOverdueRole), true);
    EXPECT_EQ(at(model.rowOfKey(u"W-2"_s), IssueListModel::IsOverdueRole), false);
    EXPECT_EQ(at(model.rowOfKey(u"W-2"_s), IssueListModel::DueTextRole), u"Hier"_s);
    EXPECT_EQ(at(model.rowOfKey(u"W-3"_s), IssueListModel::IsOverdueRole), false);
}

TEST_F(IssueListModelTest, InTheMidstOfAnUpdateEveryRowKnowsItsHeader)
{
    model.setGroups(twoGroups(), {});
    int asked = 0;
    const auto ask = [&] {
        ++asked;
        for (int row = 0; row < model.rowCount(); ++row) {
            const int header = model.headerRowOf(row);
            ASSERT_GE(header, 0);
            EXPECT_NE(model.rows()[header].header(), nullptr) << row;
            EXPECT_FALSE(at(row, IssueListModel::AccessibleNameRole).toString().isEmpty());
        }
    };
    const QObject context;
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &context, ask);
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &context, ask);
    QObject::connect(&model, &QAbstractItemModel::rowsMoved, &context, ask);
    model.setGroups(groupsOf({issueOf(u"W-0"_s, done()), issueOf(u"W-4"_s, inProgress()),
                              issueOf(u"W-2"_s, todo()), issueOf(u"W-3"_s, done())}),
                    {});
    EXPECT_GE(asked, 3);
}

TEST_F(IssueListModelTest, EqualRowsSayNothing)
{
    model.setGroups(twoGroups(), {});
    const int revision = model.revision();
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setGroups(twoGroups(), {});
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(model.revision(), revision);
}

TEST_F(IssueListModelTest, RowsOutliveTheGroupsTheyWereMadeFrom)
{
    model.setGroups(twoGroups(), {});
    const QStringList keys = rowKeys();
    // Equal groups with other records and headers.
    model.setGroups(twoGroups(), {});
    EXPECT_EQ(rowKeys(), keys);
    for (int row = 0; row < model.rowCount(); ++row)
        EXPECT_FALSE(at(row, IssueListModel::AccessibleNameRole).toString().isEmpty());
}

TEST_F(IssueListModelTest, RandomListsReplayExactlyAndNeverReset)
{
    ShadowList shadow(model, IssueListModel::KeyRole);
    IssueDerivation derivation;
    for (quint32 seed = 0; seed < 60; ++seed) {
        derivation.setInputs(randomInputs(seed, 40));
        model.setGroups(derivation.groups(), derivation.inputs().collapsedGroups);
        shadow.compare();
        ASSERT_EQ(model.rows(),
                  issueListRows(derivation.groups(), derivation.inputs().collapsedGroups).rows);
        for (int row = 0; row < model.rowCount(); ++row)
            ASSERT_EQ(model.headerRowOf(row) == row, model.rows()[row].header() != nullptr);
    }
}
