#include "jira/site/SiteClientTest.h"

using namespace Qt::StringLiterals;

namespace {

QStringList namesOf(const auto &records)
{
    QStringList names;
    for (const auto &record : records) {
        if constexpr (requires { record.name(); })
            names += record.name();
        else
            names += record.name;
    }
    return names;
}

QSet<QString> asSet(const QStringList &keys)
{
    return {keys.begin(), keys.end()};
}

} // namespace

TEST_P(SiteClientTest, ReadsWhoIsSignedIn)
{
    const JiraUser user = resultOf(client.currentUser());
    EXPECT_EQ(user.id, simulated.site().me);
    EXPECT_EQ(user.name, u"Camille Rousseau"_s);
    EXPECT_EQ(user.avatarURL->port(), simulated.files().port());
}

TEST_P(SiteClientTest, ReadsProjectsByNameAndOneWithItsTypes)
{
    EXPECT_EQ(namesOf(resultOf(client.projects())),
              (QStringList{u"Application mobile"_s, u"Centre d’aide"_s, u"Entrepôt"_s,
                           u"Facturation"_s, u"Portail client"_s, u"Ressources humaines"_s}));
    const Project help = resultOf(client.project(u"AIDE"_s));
    EXPECT_TRUE(help.isServiceDesk);
    EXPECT_EQ(help.issueTypes.size(), 2);
}

TEST_P(SiteClientTest, ReadsStatusesAndPrioritiesInTheOrderOfTheSite)
{
    EXPECT_EQ(resultOf(client.statuses(u"PORT"_s)).size(), 6);
    EXPECT_EQ(namesOf(resultOf(client.priorities())),
              (QStringList{u"Highest"_s, u"High"_s, u"Medium"_s, u"Low"_s, u"Lowest"_s}));
}

TEST_P(SiteClientTest, ReadsPrioritiesOfASiteWithoutTheirSearch)
{
    simulated.answer(SiteOperation::PrioritySearch, RawAnswer::http(404, {}));
    EXPECT_EQ(resultOf(client.priorities()).size(), 5);
}

TEST_P(SiteClientTest, ReadsThePeopleWhoCanTakeAnIssue)
{
    const QStringList names = namesOf(resultOf(client.assignableUsers(u"PORT"_s)));
    EXPECT_EQ(names.size(), 11);
    for (const QString &absent :
         {u"Automation for Jira"_s, u"Cliente du portail"_s, u"Paul Ancien"_s})
        EXPECT_FALSE(names.contains(absent));
    // In the order of the locale, names with accents do not come last.
    EXPECT_LT(names.indexOf(u"Étienne Garnier"_s), names.indexOf(u"Hugo Lefèvre"_s));
}

TEST_P(SiteClientTest, FindsUsersCustomersAmongThem)
{
    EXPECT_EQ(namesOf(resultOf(client.searchUsers(u"cliente"_s))),
              QStringList{u"Cliente du portail"_s});
    EXPECT_EQ(namesOf(resultOf(client.searchUsers(u"léa"_s))), QStringList{u"Léa Fontaine"_s});
    EXPECT_TRUE(resultOf(client.searchUsers(u"automation"_s)).isEmpty());
}

TEST_P(SiteClientTest, ListsTheUsersOwnIssuesLastChangeFirst)
{
    const IssueList issues = resultOf(client.issues(IssueScope::myIssues()));
    const QDateTime bound = clock.now().addDays(-14);
    EXPECT_EQ(asSet(keysOf(issues)), siteKeys([&](const SiteIssue &issue) {
                  return issue.assignee == simulated.site().me &&
                         (categoryOf(issue) != "done"_L1 || issue.updated >= bound);
              }));
    EXPECT_TRUE(std::ranges::is_sorted(issues, std::greater(),
                                       [](const SharedIssue &issue) { return issue->updated; }));
}

TEST_P(SiteClientTest, ListsWhatWasViewedAndWhatWasReported)
{
    const auto viewed = siteKeys([](const SiteIssue &issue) { return issue.viewed.has_value(); });
    const IssueList recent = resultOf(client.issues(IssueScope::recent()));
    EXPECT_EQ(recent.size(), std::min<qsizetype>(50, viewed.size()));
    EXPECT_TRUE(viewed.contains(asSet(keysOf(recent))));
    EXPECT_TRUE(std::ranges::is_sorted(recent, std::greater(), [&](const SharedIssue &issue) {
        return *stored(issue->key).viewed;
    }));
    const auto reported =
        siteKeys([&](const SiteIssue &issue) { return issue.reporter == simulated.site().me; });
    EXPECT_EQ(asSet(keysOf(resultOf(client.issues(IssueScope::reported())))), reported);
}

TEST_P(SiteClientTest, ListsTheRunningSprintAndTheBacklogByRank)
{
    const auto isOpenSprint = [&](const SiteIssue &issue) {
        const SiteSprint *sprint = simulated.site().sprint(issue.sprintId);
        return sprint && sprint->state == SiteSprint::State::Open;
    };
    const auto active =
        resultOf(client.issues(IssueScope::project(u"PORT"_s, ProjectView::Active)));
    EXPECT_EQ(asSet(keysOf(active)), siteKeys([&](const SiteIssue &issue) {
                  return issue.projectKey == "PORT"_L1 && isOpenSprint(issue);
              }));
    EXPECT_TRUE(std::ranges::is_sorted(
        active, {}, [&](const SharedIssue &issue) { return stored(issue->key).rank; }));
    const auto backlog =
        resultOf(client.issues(IssueScope::project(u"PORT"_s, ProjectView::Backlog)));
    EXPECT_EQ(asSet(keysOf(backlog)), siteKeys([&](const SiteIssue &issue) {
                  return issue.projectKey == "PORT"_L1 && !isOpenSprint(issue) &&
                         categoryOf(issue) != "done"_L1;
              }));
}

TEST_P(SiteClientTest, AProjectWithoutSprintsShowsCategoriesInstead)
{
    const auto inCategory = [&](const QString &category) {
        return siteKeys([&](const SiteIssue &issue) {
            return issue.projectKey == "RH"_L1 && categoryOf(issue) == category;
        });
    };
    const auto view = [&](ProjectView view) {
        return asSet(keysOf(resultOf(client.issues(IssueScope::project(u"RH"_s, view)))));
    };
    EXPECT_EQ(view(ProjectView::Active), inCategory(u"indeterminate"_s));
    EXPECT_EQ(view(ProjectView::Backlog), inCategory(u"new"_s));
}

TEST_P(SiteClientTest, ARecapHasTheEventsOfItsMonthInSeveralPages)
{
    simulated.site().largestPage = 20;
    const ActivityPeriod month{ActivityRange::Month, 0, true};
    const IssueList issues = resultOf(client.issues(IssueScope::activity(month)));
    const QDateTime begin = QDate(2026, 10, 1).startOfDay(QTimeZone("Europe/Paris"));
    const auto isWithin = [&](const QDateTime &date) {
        return date >= begin && date <= clock.now();
    };
    EXPECT_EQ(asSet(keysOf(issues)), siteKeys([&](const SiteIssue &issue) {
                  return isWithin(issue.created) ||
                         std::ranges::any_of(issue.history, [&](const SiteChange &change) {
                             return change.field == "status"_L1 && isWithin(change.date);
                         });
              }));
    EXPECT_GT(simulated.journal().size(), 2);
    for (const SharedIssue &issue : issues) {
        EXPECT_FALSE(issue->activity.isEmpty());
        for (const ActivityEvent &event : issue->activity)
            EXPECT_TRUE(isWithin(event.date));
    }
}

TEST_P(SiteClientTest, ThePersonalRecapIsAPartOfTheTeams)
{
    const auto recap = [&](bool isTeamWide) {
        const ActivityPeriod month{ActivityRange::Month, 0, isTeamWide};
        return asSet(keysOf(resultOf(client.issues(IssueScope::activity(month)))));
    };
    const auto mine = recap(false);
    EXPECT_FALSE(mine.isEmpty());
    EXPECT_TRUE(recap(true).contains(mine));
    EXPECT_NE(mine, recap(true));
}

TEST_P(SiteClientTest, FindsIssuesByTheBeginningOfAWordAndByKey)
{
    const auto named = [](const QString &word) {
        return [word](const SiteIssue &issue) { return issue.summary.contains(word); };
    };
    const auto found = keysOf(resultOf(client.search(u"invent"_s)));
    EXPECT_EQ(found.size(), std::min<qsizetype>(20, siteKeys(named(u"inventaire"_s)).size()));
    EXPECT_TRUE(siteKeys(named(u"inventaire"_s)).contains(asSet(found)));

    const IssueList one = resultOf(client.search(u" port-3 "_s));
    ASSERT_EQ(keysOf(one), QStringList{u"PORT-3"_s});
    EXPECT_TRUE(one.first()->hasDetails);
    EXPECT_TRUE(resultOf(client.search(u"port-99999"_s)).isEmpty());
    EXPECT_TRUE(resultOf(client.search(u"rien \"du\\ tout"_s)).isEmpty());
}

TEST_P(SiteClientTest, ReadsAnIssueWholeAndTiesItsPictureToItsAttachment)
{
    const QString key =
        keyWhere([](const SiteIssue &issue) { return !issue.attachments.isEmpty(); });
    const Issue issue = resultOf(client.issue(key));
    const SiteIssue &site = stored(key);
    EXPECT_TRUE(issue.hasDetails);
    EXPECT_EQ(issue.summary, site.summary);
    EXPECT_EQ(issue.status.id(), site.statusId);
    EXPECT_EQ(issue.labels, site.labels);
    EXPECT_EQ(issue.created.toMSecsSinceEpoch(), site.created.toMSecsSinceEpoch());
    EXPECT_EQ(issue.dueDate, site.due);
    ASSERT_EQ(issue.attachments.size(), site.attachments.size());
    EXPECT_EQ(issue.attachments.first().size, site.attachments.first().content.size());
    const ADFNode &media = issue.description->content->last().content->first();
    EXPECT_EQ(media.attrs->value(u"velmoraAttachmentID"_s), JSONValue(site.attachments.first().id));
}

TEST_P(SiteClientTest, AnUnknownIssueIsToldInTheWordsOfTheSite)
{
    try {
        resultOf(client.issue(u"PORT-99999"_s));
        ADD_FAILURE() << "there is no such issue";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.message(),
                  u"Le ticket n’existe pas ou vous n’êtes pas autorisé à le consulter."_s);
    }
}

TEST_P(SiteClientTest, ReadsCommentsWithTheirAudience)
{
    const QString key = keyWhere([](const SiteIssue &issue) {
        return std::ranges::any_of(issue.comments, &SiteComment::isInternal);
    });
    const QList<Comment> comments = resultOf(client.comments(key));
    const QList<SiteComment> &site = stored(key).comments;
    ASSERT_EQ(comments.size(), site.size());
    for (qsizetype at = 0; at < site.size(); ++at) {
        EXPECT_EQ(comments[at].id, site[at].id);
        EXPECT_EQ(comments[at].isInternal, site[at].isInternal);
        EXPECT_EQ(comments[at].restrictedTo.value_or(QString()), site[at].role);
    }
}
