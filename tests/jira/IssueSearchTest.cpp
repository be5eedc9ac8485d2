#include "jira/IssueSearch.h"

#include "richtext/ADFCoding.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const UserCalendar Paris{QLocale(QLocale::French, QLocale::France), QTimeZone("Europe/Paris")};

/// 29 October 2026, 14:32 in Paris, a Thursday.
QDateTime now()
{
    return QDateTime(QDate(2026, 10, 29), QTime(13, 32), Qt::UTC);
}

ScopeSearch found(const IssueScope &scope)
{
    return searchFor(scope, now(), Paris);
}

JSONValue::Object bodyOf(const JiraRequest &request)
{
    return *ADFCoding::decodeValue(*request.body)->asObject();
}

SearchResponseDTO page(qsizetype issues, std::optional<QString> token, std::optional<bool> isLast)
{
    SearchResponseDTO result;
    result.issues.resize(issues);
    result.nextPageToken = std::move(token);
    result.isLast = isLast;
    return result;
}

JiraError http(int status)
{
    return JiraError(JiraError::Http{status, {}});
}

TEST(IssueSearch, MyIssues)
{
    EXPECT_EQ(found(IssueScope::myIssues()),
              ScopeSearch({{u"assignee = currentUser() AND (statusCategory != Done OR "
                            "updated >= -14d) ORDER BY updated DESC"_s,
                            300},
                           {}}));
}

TEST(IssueSearch, Recent)
{
    EXPECT_EQ(found(IssueScope::recent()),
              ScopeSearch({{u"issuekey in issueHistory() ORDER BY lastViewed DESC"_s, 50}, {}}));
}

TEST(IssueSearch, Reported)
{
    EXPECT_EQ(found(IssueScope::reported()),
              ScopeSearch({{u"reporter = currentUser() ORDER BY created DESC"_s, 150}, {}}));
}

TEST(IssueSearch, AllOfAProjectHasNoFallback)
{
    EXPECT_EQ(found(IssueScope::project(u"NOV"_s, ProjectView::All)),
              ScopeSearch({{u"project = \"NOV\" AND (statusCategory != Done OR updated >= -30d) "
                            "ORDER BY updated DESC"_s,
                            300},
                           {}}));
}

TEST(IssueSearch, RunningSprintFallsBackToWhatIsInProgress)
{
    EXPECT_EQ(
        found(IssueScope::project(u"NOV"_s, ProjectView::Active)),
        ScopeSearch({{u"project = \"NOV\" AND sprint in openSprints() ORDER BY rank"_s, 300},
                     IssueSearch{u"project = \"NOV\" AND statusCategory = \"In Progress\" ORDER "
                                 "BY updated DESC"_s,
                                 300}}));
}

TEST(IssueSearch, BacklogFallsBackToWhatIsToDo)
{
    EXPECT_EQ(found(IssueScope::project(u"NOV"_s, ProjectView::Backlog)),
              ScopeSearch({{u"project = \"NOV\" AND statusCategory != Done AND (sprint is EMPTY OR "
                            "sprint not in openSprints()) ORDER BY rank"_s,
                            300},
                           IssueSearch{u"project = \"NOV\" AND statusCategory = \"To Do\" ORDER "
                                       "BY created DESC"_s,
                                       300}}));
}

TEST(IssueSearch, OnlyA400FallsBack)
{
    EXPECT_TRUE(isRejectedQuery(http(400)));
    for (const int status : {401, 403, 404, 410, 500})
        EXPECT_FALSE(isRejectedQuery(http(status))) << status;
    EXPECT_FALSE(isRejectedQuery(JiraError(JiraError::Decoding{u"400"_s})));
}

TEST(IssueSearch, PersonalRecapOfAWeek)
{
    const auto search = found(IssueScope::activity({ActivityRange::Week, 0, false}));
    EXPECT_EQ(
        search,
        ScopeSearch(
            {{u"(status CHANGED BY currentUser() DURING (\"2026/10/26 00:00\", \"2026/11/02 "
              "00:00\") OR (assignee WAS currentUser() DURING (\"2026/10/26 00:00\", "
              "\"2026/11/02 00:00\") AND status CHANGED DURING (\"2026/10/26 00:00\", "
              "\"2026/11/02 00:00\")) OR (reporter = currentUser() AND created >= \"2026/10/26 "
              "00:00\" AND created < \"2026/11/02 00:00\")) ORDER BY updated DESC"_s,
              300, WithHistory::Yes},
             {}}));
}

TEST(IssueSearch, TeamRecapOfTheMonthBefore)
{
    const auto search = found(IssueScope::activity({ActivityRange::Month, -1, true}));
    EXPECT_EQ(search,
              ScopeSearch({{u"(status CHANGED DURING (\"2026/09/01 00:00\", \"2026/10/01 00:00\") "
                            "OR (created >= \"2026/09/01 00:00\" AND created < \"2026/10/01 "
                            "00:00\")) ORDER BY updated DESC"_s,
                            400, WithHistory::Yes},
                           {}}));
}

TEST(PageRequest, FirstPageOfASearch)
{
    const JiraRequest request = pageRequest({u"key = NOV-1"_s, 300}, 0, {});
    EXPECT_EQ(request.method, JiraRequest::Method::Post);
    EXPECT_EQ(request.path.join(u'/'), u"rest/api/3/search/jql"_s);
    EXPECT_TRUE(request.query.isEmpty());
    EXPECT_EQ(QString::fromUtf8(*request.body),
              uR"({"fields":["summary","status","priority","assignee","reporter","labels",)"
              uR"("issuetype","project","created","updated","duedate","parent","subtasks"],)"
              uR"("jql":"key = NOV-1","maxResults":100})"_s);
}

TEST(PageRequest, LaterPageSendsTheToken)
{
    EXPECT_EQ(bodyOf(pageRequest({u"x"_s, 300}, 100, u"suite"_s))[u"nextPageToken"_s],
              JSONValue(u"suite"));
}

TEST(PageRequest, HistoryIsAskedForOnlyWhenItIsWanted)
{
    EXPECT_FALSE(bodyOf(pageRequest({u"x"_s, 300}, 0, {})).contains(u"expand"_s));
    EXPECT_EQ(bodyOf(pageRequest({u"x"_s, 300, WithHistory::Yes}, 0, {}))[u"expand"_s],
              JSONValue(u"changelog"));
}

TEST(PageRequest, WithLimit150TheSecondPageAsksFor50)
{
    EXPECT_EQ(bodyOf(pageRequest({u"x"_s, 150}, 100, u"t"_s))[u"maxResults"_s], JSONValue(50));
}

TEST(PageRequest, WithLimit20TheFirstPageAsksFor20)
{
    EXPECT_EQ(bodyOf(pageRequest({u"x"_s, 20}, 0, {}))[u"maxResults"_s], JSONValue(20));
}

TEST(NextPage, IssuesWithoutATokenEndTheSearchThoughThePageIsNotTheLast)
{
    EXPECT_EQ(nextPageToken({u"x"_s, 300}, page(100, {}, false), 100), std::nullopt);
}

TEST(NextPage, AMissingIsLastGoesOn)
{
    EXPECT_EQ(nextPageToken({u"x"_s, 300}, page(100, u"t"_s, {}), 100), u"t"_s);
}

TEST(NextPage, TheLastPageEndsTheSearchThoughItHasAToken)
{
    EXPECT_EQ(nextPageToken({u"x"_s, 300}, page(100, u"t"_s, true), 100), std::nullopt);
}

TEST(NextPage, AnEmptyPageEndsTheSearch)
{
    EXPECT_EQ(nextPageToken({u"x"_s, 300}, page(0, u"t"_s, false), 100), std::nullopt);
}

TEST(NextPage, TheLimitEndsTheSearch)
{
    EXPECT_EQ(nextPageToken({u"x"_s, 150}, page(50, u"t"_s, false), 150), std::nullopt);
    EXPECT_EQ(nextPageToken({u"x"_s, 150}, page(80, u"t"_s, false), 180), std::nullopt);
    EXPECT_EQ(nextPageToken({u"x"_s, 150}, page(49, u"t"_s, false), 149), u"t"_s);
}

TEST(TextSearch, ABlankTextSendsNoRequest)
{
    EXPECT_EQ(searchFor(u""_s), std::nullopt);
    EXPECT_EQ(searchFor(u" \n\t "_s), std::nullopt);
}

TEST(TextSearch, WordsAreSearchedByTheBeginningOfTheLast)
{
    EXPECT_EQ(searchFor(u"  panne du port \n"_s),
              TextSearch({{}, {u"text ~ \"panne du port*\" ORDER BY updated DESC"_s, 20}}));
}

TEST(TextSearch, ATextLikeAKeyIsTriedAsAKeyAndThenSearched)
{
    EXPECT_EQ(searchFor(u"abc-12"_s),
              TextSearch({u"ABC-12"_s, {u"text ~ \"abc-12*\" ORDER BY updated DESC"_s, 20}}));
}

TEST(TextSearch, AKeyMayHoldDigitsAndUnderscores)
{
    EXPECT_EQ(searchFor(u" a1_b-007 "_s)->key, u"A1_B-007"_s);
}

TEST(TextSearch, OtherTextsAreNoKeys)
{
    for (const QString &text : {u"1ab-12"_s, u"abc-"_s, u"-12"_s, u"abc 12"_s, u"abc-12x"_s,
                                u"abc-12 d"_s, u"é-12"_s, u"ab-c-12"_s, u"abc"_s})
        EXPECT_EQ(searchFor(text)->key, std::nullopt) << text.toStdString();
}

TEST(TextSearch, ADoubleQuoteIsEscaped)
{
    EXPECT_EQ(searchFor(uR"(le "port")"_s)->search.jql,
              uR"(text ~ "le \"port\"*" ORDER BY updated DESC)"_s);
}

TEST(TextSearch, ABackslashBecomesTwo)
{
    EXPECT_EQ(searchFor(uR"(c:\temp\")"_s)->search.jql,
              uR"(text ~ "c:\\temp\\\"*" ORDER BY updated DESC)"_s);
}

const DateInterval Week{QDateTime(QDate(2026, 10, 25), QTime(23, 0), Qt::UTC),
                        QDateTime(QDate(2026, 11, 1), QTime(23, 0), Qt::UTC)};

Issue withEvents(const QString &key, const QList<QDateTime> &dates)
{
    Issue issue;
    issue.key = key;
    for (const QDateTime &date : dates)
        issue.activity.append({.date = date, .author = {}, .kind = ActivityEvent::Created()});
    return issue;
}

TEST(Recap, AnEventAtTheEndIsDroppedAndOneAtTheStartKept)
{
    const auto kept = eventsWithin({withEvents(u"A-1"_s, {Week.start, Week.end})}, Week);
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(kept[0], withEvents(u"A-1"_s, {Week.start}));
}

TEST(Recap, AnIssueWithoutAnEventInThePeriodIsDropped)
{
    const auto kept =
        eventsWithin({withEvents(u"A-1"_s, {Week.start.addMSecs(-1)}), withEvents(u"A-2"_s, {}),
                      withEvents(u"A-3"_s, {Week.end.addMSecs(-1)})},
                     Week);
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(kept[0].key, u"A-3"_s);
}

TEST(Recap, TheOrderOfTheSearchStands)
{
    const auto kept = eventsWithin({withEvents(u"B-1"_s, {Week.start.addDays(1)}),
                                    withEvents(u"A-1"_s, {Week.start.addDays(3)})},
                                   Week);
    ASSERT_EQ(kept.size(), 2);
    EXPECT_EQ(kept[0].key, u"B-1"_s);
}

} // namespace
