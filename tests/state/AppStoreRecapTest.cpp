#include "state/AppStoreFixture.h"
#include "state/recap/ActivitySamples.h"
#include "support/ComputationLog.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class AppStoreRecapTest : public AppStoreFixture
{
protected:
    void SetUp() override
    {
        startSession();
        show(IssueScope::activity({}), Issues);
    }

    void show(const IssueScope &scope, const IssueList &issues)
    {
        answerEverything();
        service->issuesCalls.answerWith(issues);
        store->select(scope);
        holdEverything();
    }

    static ActivityPeriod week(int offset, bool teamWide = false)
    {
        return {ActivityRange::Week, offset, teamWide};
    }

    ActivityPeriod period() const { return *store->scope().asActivity(); }

    static QList<int> values(const ActivityHeaderData &header)
    {
        QList<int> result;
        for (const StatPill &pill : header.pills)
            result += pill.value;
        return result;
    }

    IssueListBadge badge(const QString &key) const
    {
        auto *rows = store->issueList();
        return rows->data(rows->index(rows->rowOfKey(key)), IssueListModel::BadgeRole)
            .value<IssueListBadge>();
    }

    const JiraUser Maud = Sample::user(u"u2"_s, u"Maud Kervella"_s);
    const IssueList Issues = {
        Sample::issue(u"WEB-1"_s, {Sample::createdEvent(26, Maud),
                                   Sample::statusEvent(u"À faire"_s, u"Terminé"_s, 27, Maud)}),
        Sample::issue(u"WEB-2"_s, {Sample::statusEvent(u"À faire"_s, u"Annulé"_s)}),
        Sample::issue(u"WEB-3"_s, {Sample::statusEvent(u"À faire"_s, u"En cours"_s, 27),
                                   Sample::statusEvent(u"En cours"_s, u"À faire"_s, 28)}),
        Sample::issue(u"WEB-4"_s, {Sample::assigneeEvent(u"Maud Kervella"_s)})};
};

TEST_F(AppStoreRecapTest, anIssueCancelledInThePeriodIsInProgressedNotInCompleted)
{
    const ActivitySummary summary = store->activitySummary();
    EXPECT_EQ(keys(summary.completed), QStringList{u"WEB-1"_s});
    EXPECT_TRUE(keys(summary.progressed).contains(u"WEB-2"_s));
}

TEST_F(AppStoreRecapTest, anIssueMovedAndBackHasTheSameNameOnBothSides)
{
    store->copyActivityRecap();
    EXPECT_TRUE(desktop.copied.last().contains(u"- WEB-3 Titre 3 _(À faire → À faire)_"_s))
        << desktop.copied.last().toStdString();
}

TEST_F(AppStoreRecapTest, aPeriodWithNoEventsGivesItsTitleAndASentence)
{
    show(IssueScope::activity(week(-1)), {});
    store->copyActivityRecap();
    const QStringList lines = desktop.copied.last().split(u'\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith(u"## Semaine dernière — "_s)) << lines[0].toStdString();
    EXPECT_EQ(lines[1], QString());
    EXPECT_EQ(lines[2], u"_Aucune activité sur la période._"_s);
    EXPECT_EQ(store->toasts().last().message, u"Récap copié"_s);
}

TEST_F(AppStoreRecapTest, aPeriodThatHasNotArrivedYetIsNotCopiedAsEmpty)
{
    service->issuesCalls.hold();
    store->select(IssueScope::activity(week(-1)));
    store->copyActivityRecap();
    EXPECT_TRUE(desktop.copied.isEmpty());
    EXPECT_EQ(store->toasts().last().message, u"Le récap n'est pas encore chargé"_s);
}

TEST_F(AppStoreRecapTest, aRecapThatTheSiteCutSaysSo)
{
    service->limit = Issues.size();
    show(IssueScope::activity(week(-1)), Issues);
    EXPECT_EQ(store->countHint(), u"La liste s'arrête aux 4 premiers tickets."_s);
}

TEST_F(AppStoreRecapTest, readsWithoutAChangeComputeNothing)
{
    const ComputationLog log;
    store->activitySummary();
    badge(u"WEB-3"_s);
    badge(u"WEB-4"_s);
    store->copyActivityRecap();
    clock.advance(60s);
    for (const QString &name : {u"recap statuses"_s, u"recap summary"_s, u"recap users"_s})
        EXPECT_EQ(log.count(name), 0) << name.toStdString();
}

TEST_F(AppStoreRecapTest, anEditCostsOnePassOverTheEventsAtMost)
{
    const QSignalSpy badges(store->issueList(), &QAbstractItemModel::dataChanged);
    const ComputationLog log;
    store->rename(u"WEB-3"_s, u"Autre titre"_s);
    badge(u"WEB-3"_s);
    store->activitySummary();
    EXPECT_EQ(log.count(u"recap summary"_s), 1);
    EXPECT_EQ(log.count(u"recap statuses"_s), 1);
    for (const auto &change : badges)
        EXPECT_NE(change.at(2).value<QList<int>>(), QList<int>{IssueListModel::BadgeRole})
            << "the badges of all rows are what they were";
}

TEST_F(AppStoreRecapTest, theSummaryIsThatOfTheVisibleIssuesAfterEveryChange)
{
    const auto plain = [this] {
        return activitySummary(
            store->visibleIssues(),
            StatusLookup({store->projectStatuses(), store->issues(), store->myOpenIssues()}));
    };
    const IssueStatus odd(u"42"_s, u"Terminé"_s, u"indeterminate"_s);
    EXPECT_EQ(store->activitySummary(), plain());
    store->setStatus(odd, {u"WEB-2"_s});
    EXPECT_EQ(store->activitySummary(), plain());
    store->setFilterText(u"WEB-1"_s);
    EXPECT_EQ(store->activitySummary(), plain());
    store->setFilterText({});
    answerEverything();
    service->statusesCalls.answerWith({odd});
    const TaskResult<void> met(store->loadProjectMeta(u"WEB"_s));
    EXPECT_EQ(store->activitySummary(), plain());
    show(IssueScope::activity(week(-1)), {Issues[2], Issues[0]});
    EXPECT_EQ(store->activitySummary(), plain());
}

TEST_F(AppStoreRecapTest, aFilterNarrowsTheCountersAndTheReport)
{
    EXPECT_EQ(values(store->activityHeader()), (QList{1, 2, 1}));
    const QSignalSpy changes(store.get(), &AppStore::activityHeaderChanged);
    store->setFilterText(u"WEB-2"_s);
    EXPECT_EQ(values(store->activityHeader()), (QList{0, 1, 0}));
    EXPECT_EQ(changes.count(), 1);
    store->copyActivityRecap();
    EXPECT_FALSE(desktop.copied.last().contains(u"WEB-1"_s));
}

TEST_F(AppStoreRecapTest, aReportOfTheUserAloneHasNoNames)
{
    IssueList assigned = Issues;
    Issue issue = *assigned[0];
    issue.assignee = Maud;
    assigned[0] = issue;
    show(IssueScope::activity(week(-1)), assigned);
    store->copyActivityRecap();
    EXPECT_FALSE(desktop.copied.last().contains(u"Maud"_s));
    show(IssueScope::activity(week(-1, true)), assigned);
    store->copyActivityRecap();
    EXPECT_TRUE(desktop.copied.last().contains(u" — Maud"_s));
}

TEST_F(AppStoreRecapTest, nextIsDisabledAtTheCurrentPeriodAndLeadsBackToIt)
{
    EXPECT_FALSE(store->activityHeader().hasNext);
    store->showPreviousPeriod();
    EXPECT_EQ(period(), week(-1));
    EXPECT_TRUE(store->activityHeader().hasNext);
    store->showNextPeriod();
    EXPECT_EQ(period(), week(0));
    store->showNextPeriod();
    EXPECT_EQ(period(), week(0));
}

TEST_F(AppStoreRecapTest, theSwitchForTheTeamIsKeptAndARangeKeepsItsOffset)
{
    show(IssueScope::activity(week(-3)), Issues);
    store->showPeople(Recap::People::Team);
    EXPECT_EQ(period(), week(-3, true));
    EXPECT_EQ(preferences.flag(u"activityTeamWide"_s), true);
    EXPECT_TRUE(store->activityHeader().teamWide);
    EXPECT_EQ(store->activityHeader().pillCount(), 4);
    store->showRange(ActivityRange::Month);
    EXPECT_EQ(period(), (ActivityPeriod{ActivityRange::Month, -3, true}));
    EXPECT_FALSE(store->activityHeader().isWeek);
    EXPECT_EQ(store->activityHeader().previousHelp, u"Mois précédent"_s);
    store->showPeople(Recap::People::Me);
    EXPECT_EQ(preferences.flag(u"activityTeamWide"_s), false);
}

TEST_F(AppStoreRecapTest, outsideARecapNothingOfItDoesAnything)
{
    show(IssueScope::recent(), Issues);
    store->copyActivityRecap();
    store->showPreviousPeriod();
    store->showNextPeriod();
    store->showRange(ActivityRange::Month);
    store->showPeople(Recap::People::Team);
    EXPECT_TRUE(desktop.copied.isEmpty());
    EXPECT_EQ(store->scope(), IssueScope::recent());
    EXPECT_EQ(preferences.flag(u"activityTeamWide"_s), std::nullopt);
    EXPECT_EQ(store->activityHeader(), ActivityHeaderData());
    EXPECT_FALSE(badge(u"WEB-1"_s).isShown());
}

TEST_F(AppStoreRecapTest, aRowBearsItsLatestEvent)
{
    const IssueListBadge moved = badge(u"WEB-3"_s);
    EXPECT_TRUE(moved.isShown());
    EXPECT_EQ(moved.label(), u"À faire"_s);
    EXPECT_TRUE(moved.hasStatus());
    EXPECT_EQ(moved.dateText(), u"28 oct."_s);
    EXPECT_TRUE(moved.tooltip().contains(u"+ 1 autre événement sur la période"_s));
    EXPECT_EQ(badge(u"WEB-4"_s).symbol(), u"person.crop.circle"_s) << "nobody knows Maud yet";
}

TEST_F(AppStoreRecapTest, aPictureIsFoundOnceItsUserIsMet)
{
    const QSignalSpy changes(store->issueList(), &QAbstractItemModel::dataChanged);
    answerEverything();
    service->assignableUsersCalls.answerWith({Maud});
    const TaskResult<void> met(store->loadProjectMeta(u"API"_s));
    EXPECT_GE(changes.count(), 1);
    EXPECT_TRUE(badge(u"WEB-4"_s).hasUser());
    EXPECT_EQ(badge(u"WEB-4"_s).userOrEmpty(), Maud);
}

TEST_F(AppStoreRecapTest, aNameThatNoProjectKnowsGivesAGuessedStatus)
{
    EXPECT_TRUE(store->statusNamed(u"Étrange"_s, u"WEB"_s).id().startsWith(u"name:"_s));
}

TEST_F(AppStoreRecapTest, aNameIsFoundInTheProjectsStatusesOnceTheyAreLoaded)
{
    const IssueStatus odd(u"42"_s, u"Étrange"_s, u"indeterminate"_s);
    answerEverything();
    service->statusesCalls.answerWith({odd});
    const TaskResult<void> met(store->loadProjectMeta(u"API"_s));
    EXPECT_EQ(store->statusNamed(u"étrange"_s, u"API"_s), odd);
    EXPECT_EQ(store->statusNamed(u"ETRANGE"_s, u"WEB"_s), odd) << "of any project";
}

} // namespace
