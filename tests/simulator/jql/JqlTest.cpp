#include "simulator/jql/JqlParser.h"
#include "simulator/jql/JqlSearch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDateTime now({2026, 10, 29}, {13, 32}, Qt::UTC);

QDateTime daysAgo(double days)
{
    return now.addMSecs(-qint64(days * 86'400'000));
}

SiteChange statusChange(const QDateTime &date, const QString &author)
{
    return {.date = date, .author = author, .field = u"status"_s, .from = u"1"_s, .to = u"3"_s};
}

SiteChange assignment(const QDateTime &date, const QString &from, const QString &to)
{
    return {.date = date, .author = u"lea"_s, .field = u"assignee"_s, .from = from, .to = to};
}

/// One project with sprints (A) and one without (B).
Site siteWithoutIssues()
{
    Site site;
    site.now = [] { return now; };
    site.me = u"me"_s;
    site.sprints = {{u"1"_s, {}, SiteSprint::State::Open}, {u"2"_s, {}, SiteSprint::State::Future}};
    const QList<SiteStatus> statuses = {{u"1"_s, u"À faire"_s, u"new"_s},
                                        {u"3"_s, u"En cours"_s, u"indeterminate"_s},
                                        {u"5"_s, u"Terminé"_s, u"done"_s}};
    site.projects = {
        {.id = u"1"_s, .key = u"A"_s, .types = {{u"1"_s, {}}}, .statuses = statuses},
        {.id = u"2"_s,
         .key = u"B"_s,
         .types = {{u"1"_s, {}}},
         .statuses = statuses,
         .hasSprints = false},
    };
    return site;
}

/// The two projects with one issue for each case that a query can distinguish.
Site smallSite()
{
    Site site = siteWithoutIssues();
    int rank = 100;
    const auto add = [&](const QString &key, const QString &status, SiteIssue issue) {
        issue.id = key;
        issue.key = key;
        issue.projectKey = key.section(u'-', 0, 0);
        issue.typeId = u"1"_s;
        issue.statusId = status;
        issue.rank = --rank;
        site.add(issue);
    };
    add(u"A-1"_s, u"1"_s,
        {.assignee = u"me"_s,
         .reporter = u"lea"_s,
         .summary = u"Été à Nîmes"_s,
         .created = daysAgo(50),
         .updated = daysAgo(40)});
    add(u"A-2"_s, u"5"_s,
        {.assignee = u"me"_s,
         .reporter = u"me"_s,
         .summary = u"Hiver"_s,
         .created = daysAgo(60),
         .updated = daysAgo(13.9),
         .sprintId = u"1"_s,
         .viewed = daysAgo(1),
         .history = {statusChange(daysAgo(20), u"me"_s)}});
    add(u"A-3"_s, u"5"_s,
        {.assignee = u"me"_s,
         .reporter = u"lea"_s,
         .summary = u"Printemps"_s,
         .created = daysAgo(60),
         .updated = daysAgo(14.1),
         .sprintId = u"2"_s,
         .viewed = daysAgo(2),
         .history = {assignment(daysAgo(30), {}, u"me"_s), statusChange(daysAgo(20), u"lea"_s)}});
    add(u"A-4"_s, u"3"_s,
        {.assignee = u"lea"_s,
         .reporter = u"me"_s,
         .summary = u"Automne d'été"_s,
         .created = daysAgo(3),
         .updated = daysAgo(2),
         .history = {assignment(daysAgo(2.5), u"me"_s, u"lea"_s),
                     statusChange(daysAgo(2), u"lea"_s)}});
    add(u"B-1"_s, u"1"_s,
        {.reporter = u"lea"_s,
         .summary = u"Une \"citation\" entière"_s,
         .created = daysAgo(5),
         .updated = daysAgo(5)});
    return site;
}

QStringList keysOf(const QString &jql)
{
    const Site site = smallSite();
    const auto found = searchIssues(site, jql);
    if (!found)
        return {u"error: "_s + found.error()};
    QStringList keys;
    for (const SiteIssue *issue : *found)
        keys += issue->key;
    return keys;
}

struct Query
{
    const char *name;
    QString jql;
    QStringList keys;
};

class JqlTest : public testing::TestWithParam<Query>
{
};

QString during(const QString &condition, double from, double to)
{
    const auto text = [](double days) {
        return daysAgo(days).toTimeZone(QTimeZone("Europe/Paris")).toString(u"yyyy/MM/dd HH:mm"_s);
    };
    return u"%1 DURING (\"%2\", \"%3\")"_s.arg(condition, text(from), text(to));
}

INSTANTIATE_TEST_SUITE_P(
    Queries, JqlTest,
    testing::Values(
        Query{
            "OwnIssuesThatAreOpenOrChangedLately",
            u"assignee = currentUser() AND (statusCategory != Done OR updated >= -14d) ORDER BY updated DESC"_s,
            {u"A-2"_s, u"A-1"_s}},
        Query{"ViewedIssues",
              u"issuekey in issueHistory() ORDER BY lastViewed DESC"_s,
              {u"A-2"_s, u"A-3"_s}},
        Query{"ReportedIssues",
              u"reporter = currentUser() ORDER BY created DESC"_s,
              {u"A-4"_s, u"A-2"_s}},
        Query{"AnOpenSprintByRank",
              u"project = \"A\" AND sprint in openSprints() ORDER BY rank"_s,
              {u"A-2"_s}},
        Query{"ABacklogHasIssuesWithoutASprintToo",
              u"project = \"A\" AND statusCategory != Done AND (sprint is EMPTY OR sprint not in "
              u"openSprints()) "
              "ORDER BY rank"_s,
              {u"A-4"_s, u"A-1"_s}},
        Query{"ASprintNotAmongTheOpenOnes",
              u"project = A AND sprint not in openSprints() ORDER BY rank"_s,
              {u"A-3"_s}},
        Query{"ACategoryByItsEnglishName",
              u"project = \"A\" AND statusCategory = \"In Progress\" ORDER BY updated DESC"_s,
              {u"A-4"_s}},
        Query{"ACategoryToDo",
              u"statusCategory = \"To Do\" ORDER BY created DESC"_s,
              {u"B-1"_s, u"A-1"_s}},
        Query{"ChangesByAUserWithinATime",
              during(u"status CHANGED BY currentUser()"_s, 21, 19) + u" ORDER BY updated DESC"_s,
              {u"A-2"_s}},
        Query{"ChangesByAUserOutsideATime",
              during(u"status CHANGED BY currentUser()"_s, 19, 1) + u" ORDER BY updated DESC"_s,
              {}},
        Query{"ChangesByAnyone",
              during(u"status CHANGED"_s, 21, 19) + u" ORDER BY rank DESC"_s,
              {u"A-2"_s, u"A-3"_s}},
        Query{"AnAssigneeOfThatTimeOnly",
              during(u"assignee WAS currentUser()"_s, 3, 2.6) + u" ORDER BY updated DESC"_s,
              {u"A-4"_s, u"A-2"_s, u"A-3"_s, u"A-1"_s}},
        Query{"AnAssigneeOfAnotherTime",
              during(u"assignee WAS currentUser()"_s, 1, 0) + u" AND created >= -10d"_s,
              {}},
        Query{"WordsWithoutCaseAndAccents", u"text ~ \"ETE nimes\""_s, {u"A-1"_s}},
        Query{"TheBeginningOfTheLastWord", u"text ~ \"d ét*\" ORDER BY updated DESC"_s, {u"A-4"_s}},
        Query{"AWholeWordIsNoBeginning", u"text ~ \"automn\""_s, {}},
        Query{"QuotesWithinAText", u"text ~ \"une \\\"citation*\""_s, {u"B-1"_s}},
        Query{"NotOfACondition", u"NOT (project = A) ORDER BY rank"_s, {u"B-1"_s}},
        Query{"KeywordsInAnyCase",
              u"project = b or KEY in (a-1) order by created desc"_s,
              {u"B-1"_s, u"A-1"_s}}),
    [](const auto &test) { return test.param.name; });

TEST_P(JqlTest, Finds)
{
    EXPECT_EQ(keysOf(GetParam().jql), GetParam().keys) << qPrintable(GetParam().jql);
}

class JqlRefusalTest : public testing::TestWithParam<Query>
{
};

INSTANTIATE_TEST_SUITE_P(
    Queries, JqlRefusalTest,
    testing::Values(Query{"SprintsOfAProjectWithoutThem",
                          u"project = \"B\" AND sprint in openSprints()"_s,
                          {u"« sprint » n’existe pas"_s}},
                    Query{"AnUnknownProject", u"project = \"ZZZ\""_s, {u"« ZZZ » n’existe pas"_s}},
                    Query{"AnUnknownField", u"humeur = bonne"_s, {u"« humeur »"_s}},
                    Query{"AnUnknownOrder", u"project = A ORDER BY humeur"_s, {u"« humeur »"_s}},
                    Query{"NoCondition", u"ORDER BY updated DESC"_s, {u"sans restriction"_s}},
                    Query{"NoText", u""_s, {u"sans restriction"_s}},
                    Query{"AnOpenBracket", u"(project = A"_s, {u"près de la fin"_s}},
                    Query{"AnOpenText", u"text ~ \"abc"_s, {u"n'est pas terminé"_s}},
                    Query{"AMissingValue", u"project = AND"_s, {}},
                    Query{
                        "TwoConditionsSideBySide", u"project = A status = 3"_s, {u"« status »"_s}}),
    [](const auto &test) { return test.param.name; });

TEST_P(JqlRefusalTest, IsRefusedWithAReason)
{
    const QString error = keysOf(GetParam().jql).value(0);
    EXPECT_TRUE(error.startsWith(u"error: "_s)) << qPrintable(error);
    for (const QString &part : GetParam().keys)
        EXPECT_TRUE(error.contains(part)) << qPrintable(error);
}

TEST(JqlParserTest, ASiteWithoutSprintsRefusesTheField)
{
    Site site = smallSite();
    site.knowsSprints = false;
    EXPECT_FALSE(searchIssues(site, u"project = \"A\" AND sprint in openSprints()"_s));
}

} // namespace
