#include "state/AppStoreFixture.h"
#include "support/ComputationLog.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class AppStoreDerivedTest : public AppStoreFixture
{
protected:
    void SetUp() override
    {
        startSession();
        reloadWith(Issues);
    }

    const IssueList Issues = {sampleIssue(u"WEB-1"_s, u"En cours"_s),
                              sampleIssue(u"WEB-2"_s, u"À faire"_s),
                              sampleIssue(u"WEB-3"_s, u"À faire"_s)};
};

TEST_F(AppStoreDerivedTest, theSubtitleCountsWhatIsVisible)
{
    EXPECT_EQ(store->subtitle(), u"3 tickets"_s);
    store->setFilterText(u"WEB-2"_s);
    EXPECT_EQ(store->visibleCount(), 1);
    EXPECT_EQ(store->subtitle(), u"1 ticket"_s);
    store->setFilterText(u"rien de tel"_s);
    EXPECT_EQ(store->subtitle(), u"0 tickets"_s);
}

TEST_F(AppStoreDerivedTest, theSubtitleTellsOfARefresh)
{
    const TaskResult<void> reloaded(store->reload());
    EXPECT_EQ(store->subtitle(), u"3 tickets · synchronisation…"_s);
    service->issuesCalls.last().finish(Issues);

    EXPECT_EQ(store->subtitle(), u"3 tickets"_s);
}

TEST_F(AppStoreDerivedTest, nothingOfASessionStaysInTheLayoutOutOfSight)
{
    store->setLayout(LayoutMode::Board);
    EXPECT_GT(store->board()->rowCount(), 0);
    store->signOut();
    EXPECT_EQ(store->issueList()->rowCount(), 0);

    startSession();
    store->setLayout(LayoutMode::Board);
    reloadWith(Issues);
    store->setLayout(LayoutMode::List);
    store->signOut();
    EXPECT_EQ(store->board()->columnOfKey(u"WEB-1"_s), -1);
}

TEST_F(AppStoreDerivedTest, theTitleFollowsTheScope)
{
    const QSignalSpy changes(store.get(), &AppStore::scopeTitleChanged);
    EXPECT_EQ(store->scopeTitle(), u"Mes tickets"_s);
    store->select(IssueScope::recent());

    EXPECT_EQ(store->scopeTitle(), u"Récemment consultés"_s);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(AppStoreDerivedTest, aProjectsTitleTakesItsNameWhenItIsKnown)
{
    store->select(IssueScope::project(u"API"_s, ProjectView::Active));
    EXPECT_EQ(store->scopeTitle(), u"API · Sprint actif"_s);
    answerEverything();
    const TaskResult<void> meta(store->loadProjectMeta(u"API"_s));

    EXPECT_EQ(store->scopeTitle(), u"Projet API · Sprint actif"_s);
}

TEST_F(AppStoreDerivedTest, theListModelShowsTheGroups)
{
    EXPECT_EQ(store->issueList()->rowCount(), 5) << "two headers and three issues";
    EXPECT_EQ(store->issueList()->index(1).data(IssueListModel::KeyRole), u"WEB-1"_s);

    store->toggleGroup(store->groups()[1].id);
    EXPECT_EQ(store->issueList()->rowCount(), 3);
    EXPECT_EQ(store->flatVisibleKeys(), QStringList(u"WEB-1"_s));
    store->toggleGroup(store->groups()[1].id);
    EXPECT_EQ(store->issueList()->rowCount(), 5);
}

TEST_F(AppStoreDerivedTest, oneOperationFeedsTheListOnce)
{
    store->setFilterText(u"web"_s);
    const QSignalSpy updates(store->issueList(), &IssueListModel::updated);
    store->signOut();

    EXPECT_EQ(updates.count(), 1) << "issues, filter text and user have changed";
    EXPECT_EQ(store->issueList()->rowCount(), 0);
}

TEST_F(AppStoreDerivedTest, aReloadFeedsTheListOnce)
{
    store->setChecked({u"WEB-1"_s});
    const QSignalSpy updates(store->issueList(), &IssueListModel::updated);
    const TaskResult<void> reloaded(store->reload());
    service->issuesCalls.last().finish({sampleIssue(u"WEB-9"_s)});

    EXPECT_EQ(updates.count(), 1);
}

TEST_F(AppStoreDerivedTest, comingBackToALayoutThatNothingHasChangedFeedsNothing)
{
    store->setLayout(LayoutMode::Board);
    store->setLayout(LayoutMode::List);
    const QSignalSpy rows(store->issueList(), &IssueListModel::updated);
    const QSignalSpy columns(store->board(), &BoardModel::updated);
    store->setLayout(LayoutMode::Board);
    store->setLayout(LayoutMode::List);

    EXPECT_EQ(rows.count(), 0);
    EXPECT_EQ(columns.count(), 0);
}

TEST_F(AppStoreDerivedTest, theLayoutOutOfSightIsFedWhenItComesBack)
{
    store->setLayout(LayoutMode::Board);
    const QSignalSpy rows(store->issueList(), &IssueListModel::updated);
    reloadWith({sampleIssue(u"WEB-9"_s)});
    EXPECT_EQ(rows.count(), 0);
    EXPECT_EQ(store->board()->columnOfKey(u"WEB-9"_s) >= 0, true);

    store->setLayout(LayoutMode::List);
    EXPECT_EQ(store->issueList()->rowCount(), 2) << "a header and an issue";
    EXPECT_GE(store->issueList()->rowOfKey(u"WEB-9"_s), 0);
}

TEST_F(AppStoreDerivedTest, aListenerOfAFieldSeesListsMadeFromIt)
{
    int seen = -1;
    QObject::connect(store.get(), &AppStore::issuesChanged, store.get(),
                     [&] { seen = int(store->visibleIssues().size()); });
    reloadWith({sampleIssue(u"WEB-9"_s)});

    EXPECT_EQ(seen, 1);
}

TEST_F(AppStoreDerivedTest, whatAListenerWritesIsShownToo)
{
    QObject::connect(store.get(), &AppStore::visibleCountChanged, store.get(),
                     [&] { store->setGrouping(Grouping::None); });
    store->setFilterText(u"WEB-2"_s);

    EXPECT_EQ(store->groups()[0].id, u"all"_s);
    EXPECT_EQ(store->issueList()->headerAt(0).groupId, u"all"_s);
}

TEST_F(AppStoreDerivedTest, movingTheFocusComputesNothingAnew)
{
    store->moveFocus(1);
    const ComputationLog log;
    const QSignalSpy updates(store->issueList(), &IssueListModel::updated);
    store->moveFocus(1);
    store->moveFocus(-1, FocusMove::Extending);

    EXPECT_EQ(log.count(u"groups"_s), 0);
    EXPECT_EQ(log.count(u"visible keys"_s), 0);
    EXPECT_EQ(updates.count(), 0);
}

TEST_F(AppStoreDerivedTest, theModelMarksFocusChecksAndTheOpenIssue)
{
    const auto is = [this](int row, IssueListModel::Role role) {
        return store->issueList()->index(row).data(role).toBool();
    };
    store->setInspectorKey(u"WEB-2"_s);
    store->moveFocus(1, FocusMove::Extending);

    EXPECT_TRUE(is(1, IssueListModel::IsFocusedRole));
    EXPECT_TRUE(is(1, IssueListModel::IsCheckedRole));
    EXPECT_TRUE(is(1, IssueListModel::IsOpenRole)) << "an open inspector follows the focus";
    EXPECT_FALSE(is(3, IssueListModel::IsOpenRole));
}

TEST_F(AppStoreDerivedTest, theSidebarFollowsProjectsFavouritesAndTheCount)
{
    const auto texts = [this] {
        QStringList result;
        for (const auto &row : store->sidebar()->rows())
            result += row.text;
        return result;
    };
    EXPECT_TRUE(texts().contains(u"Chargement…"_s));
    answerEverything();
    service->projectsCalls.answerWith({sampleProject(u"WEB"_s)});
    service->issuesCalls.answerWith(Issues);
    const TaskResult<void> started(store->startDemo());
    EXPECT_TRUE(texts().contains(u"Projet WEB"_s));
    EXPECT_EQ(store->sidebar()->rows()[0].badge, 3);
    EXPECT_FALSE(texts().contains(u"Favoris"_s));

    store->toggleFavorite(u"WEB"_s);
    EXPECT_TRUE(texts().contains(u"Favoris"_s));
}

TEST_F(AppStoreDerivedTest, timeGoesOnByTheMinuteWhileASessionIsOpen)
{
    const QSignalSpy ticks(store.get(), &AppStore::nowChanged);
    desktop.isActive = false;
    clock.advance(180s);
    EXPECT_EQ(ticks.count(), 3);
    EXPECT_EQ(store->now(), clock.now());

    store->signOut();
    clock.advance(180s);
    EXPECT_EQ(ticks.count(), 3);
}

// The focus -----------------------------------------------------------------------------------------------------------

TEST_F(AppStoreDerivedTest, theLayoutOutOfSightLearnsTheTimeWhenItComesBack)
{
    startSession();
    Issue fresh = sampleIssue(u"WEB-1"_s);
    fresh.updated = clock.now();
    reloadWith({fresh});
    const auto ageShown = [this] {
        return store->issueList()->index(1).data(IssueListModel::UpdatedTextRole).toString();
    };
    const QString before = ageShown();
    store->setLayout(LayoutMode::Board);
    const QSignalSpy changes(store->issueList(), &QAbstractItemModel::dataChanged);
    desktop.isActive = false;
    clock.advance(std::chrono::hours(48));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(ageShown(), before);

    store->setLayout(LayoutMode::List);
    EXPECT_GT(changes.count(), 0);
    EXPECT_NE(ageShown(), before);
}

TEST_F(AppStoreDerivedTest, downWithNothingFocusedGoesToTheFirstRowAndUpToTheLast)
{
    store->moveFocus(1);
    EXPECT_EQ(store->focusedKey(), u"WEB-1"_s);
    store->setFocusedKey(std::nullopt);
    store->moveFocus(-1);

    EXPECT_EQ(store->focusedKey(), u"WEB-3"_s);
}

TEST_F(AppStoreDerivedTest, downAtTheLastRowStaysThere)
{
    store->moveFocus(-1);
    store->moveFocus(1);

    EXPECT_EQ(store->focusedKey(), u"WEB-3"_s);
}

TEST_F(AppStoreDerivedTest, extendingFromAnUnfocusedStateChecksTheRowReachedAlone)
{
    store->moveFocus(1, FocusMove::Extending);
    EXPECT_EQ(store->checked(), QSet<QString>{u"WEB-1"_s});
    store->moveFocus(1, FocusMove::Extending);

    EXPECT_EQ(store->checked(), QSet<QString>({u"WEB-1"_s, u"WEB-2"_s}));
}

TEST_F(AppStoreDerivedTest, anEmptyListHasNoFocusToMove)
{
    store->setFilterText(u"rien de tel"_s);
    store->moveFocus(1);

    EXPECT_FALSE(store->focusedKey());
}

TEST_F(AppStoreDerivedTest, aClosedInspectorStaysClosedWhenTheFocusMoves)
{
    store->moveFocus(1);

    EXPECT_FALSE(store->inspectorKey());
}

} // namespace
