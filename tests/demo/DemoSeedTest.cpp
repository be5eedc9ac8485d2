#include "demo/DemoSamples.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const DemoSeed::Seed &seed()
{
    static const DemoSeed::Seed made = testSeed();
    return made;
}

const Issue &issueOf(const QString &key)
{
    const auto found = std::ranges::find(seed().issues, key, &Issue::key);
    if (found == seed().issues.end())
        throw std::out_of_range(key.toStdString());
    return *found;
}

qsizetype countOf(const QString &projectKey)
{
    return std::ranges::count(seed().issues, projectKey, &Issue::projectKey);
}

qint64 daysBetweenCreationAndChange(qsizetype index)
{
    return seed().issues[index].created.daysTo(seed().issues[index].updated);
}

QString reporterOf(const QString &key)
{
    return issueOf(key).reporter.value().id;
}

} // namespace

TEST(DemoSeed, holdsFortyOneIssuesInFourProjects)
{
    EXPECT_EQ(seed().issues.size(), 41);
    EXPECT_EQ(countOf(u"MOB"_s), 14);
    EXPECT_EQ(countOf(u"WEB"_s), 15);
    EXPECT_EQ(countOf(u"DS"_s), 8);
    EXPECT_EQ(countOf(u"SUP"_s), 4);
}

TEST(DemoSeed, closedIssuesOfTheUserStandAfterTheOthersOfTheirProject)
{
    QStringList keys;
    for (const Issue &issue : seed().issues.mid(31, 6))
        keys += issue.key;
    EXPECT_EQ(keys, words("DS-37 MOB-113 WEB-214 WEB-215 DS-38 MOB-114"));
}

TEST(DemoSeed, everyThirdIssueIsReportedByTheUser)
{
    EXPECT_EQ(reporterOf(u"MOB-101"_s), u"u-me"_s);
    EXPECT_EQ(reporterOf(u"MOB-102"_s), u"u-basile"_s);
    EXPECT_EQ(reporterOf(u"WEB-201"_s), u"u-me"_s);
    const auto mine = std::ranges::count_if(
        seed().issues, [](const Issue &issue) { return issue.reporter == DemoSeed::me(); });
    // The user reports rows 0, 3, …, 39. In the distribution over the team, it is the user's turn at rows 5, 11, 17, …
    qsizetype expected = 0;
    for (int index = 0; index < 41; ++index)
        expected += (index % 3 == 0 || (index + 1) % 6 == 0) ? 1 : 0;
    EXPECT_EQ(mine, expected);
}

TEST(DemoSeed, createdLiesThreeToElevenDaysBeforeTheLastChange)
{
    EXPECT_EQ(daysBetweenCreationAndChange(8), 11);
    EXPECT_EQ(daysBetweenCreationAndChange(9), 3);
    for (qsizetype index = 0; index < seed().issues.size(); ++index) {
        EXPECT_GE(daysBetweenCreationAndChange(index), 3) << index;
        EXPECT_LE(daysBetweenCreationAndChange(index), 11) << index;
    }
}

TEST(DemoSeed, lastChangeIsAFractionOfADayAgo)
{
    EXPECT_EQ(issueOf(u"MOB-101"_s).updated, testNow().addDuration(-72min));
    EXPECT_EQ(issueOf(u"WEB-215"_s).updated, testNow().addSecs(-8 * 86'400 - 25'920));
}

TEST(DemoSeed, onlyThreeIssuesAreDue)
{
    EXPECT_EQ(issueOf(u"MOB-101"_s).dueDate, QDate(2026, 10, 31));
    EXPECT_EQ(issueOf(u"MOB-104"_s).dueDate, QDate(2026, 10, 30));
    EXPECT_EQ(issueOf(u"WEB-204"_s).dueDate, QDate(2026, 11, 3));
    EXPECT_EQ(std::ranges::count_if(seed().issues, [](const Issue &i) { return i.hasDueDate(); }),
              3);
}

TEST(DemoSeed, dueDateIsADayOfTheUsersZone)
{
    const UserCalendar tokyo{QLocale(QLocale::Japanese), QTimeZone("Asia/Tokyo")};
    // 23:30 in Paris is on the next day in Tokyo.
    const DemoSeed::Seed late = DemoSeed::make(inParis(10, 29, 23, 30), tokyo, countingIDs());
    EXPECT_EQ(late.issues.first().dueDate, QDate(2026, 11, 1));
}

TEST(DemoSeed, oneIssueHasNoPriority)
{
    QStringList keys;
    for (const Issue &issue : seed().issues) {
        if (!issue.hasPriority())
            keys += issue.key;
    }
    EXPECT_EQ(keys, words("DS-35"));
}

TEST(DemoSeed, labelsAreSeparateWords)
{
    EXPECT_EQ(issueOf(u"MOB-101"_s).labels, words("auth ios"));
    EXPECT_EQ(issueOf(u"MOB-106"_s).labels, words("tech-debt"));
    EXPECT_TRUE(issueOf(u"MOB-111"_s).labels.isEmpty());
}

TEST(DemoSeed, parentIsAReferenceToItsRow)
{
    const IssueRef parent = issueOf(u"WEB-202"_s).parent.value();
    EXPECT_EQ(parent.id, u"id-WEB-201"_s);
    EXPECT_EQ(parent.key, u"WEB-201"_s);
    EXPECT_EQ(parent.summary, u"Refonte de la page de facturation"_s);
    EXPECT_EQ(parent.status, issueOf(u"WEB-201"_s).status);
    EXPECT_EQ(parent.type, issueOf(u"WEB-201"_s).type);
    EXPECT_FALSE(issueOf(u"WEB-201"_s).hasParent());
    EXPECT_EQ(std::ranges::count_if(seed().issues, [](const Issue &i) { return i.hasParent(); }),
              3);
}

TEST(DemoSeed, issuesCarryNothingThatOnlyDetailsHave)
{
    for (const Issue &issue : seed().issues) {
        EXPECT_FALSE(issue.hasDetails);
        EXPECT_TRUE(issue.subtasks.isEmpty());
        EXPECT_TRUE(issue.activity.isEmpty());
        EXPECT_TRUE(issue.attachments.isEmpty());
        EXPECT_EQ(issue.id, u"id-"_s + issue.key);
    }
}

TEST(DemoSeed, sprintHoldsTwentySevenIssuesAndNoneOfSupport)
{
    EXPECT_EQ(seed().sprint.size(), 27);
    EXPECT_TRUE(std::ranges::none_of(seed().sprint,
                                     [](const QString &key) { return key.startsWith(u"SUP-"_s); }));
}

TEST(DemoSeed, recentKeysBeginWithTheLatest)
{
    EXPECT_EQ(seed().recentKeys, words("MOB-101 SUP-41 WEB-202 WEB-205 DS-32 MOB-104"));
}

TEST(DemoSeed, sameInstantGivesTheSameData)
{
    const DemoSeed::Seed again = testSeed();
    EXPECT_EQ(again.issues, seed().issues);
    EXPECT_EQ(again.sprint, seed().sprint);
    EXPECT_EQ(again.threads, seed().threads);
    EXPECT_EQ(again.recentKeys, seed().recentKeys);
    EXPECT_EQ(again.events, seed().events);
}

TEST(DemoSeed, datesMoveWithTheStart)
{
    const DemoSeed::Seed later = DemoSeed::make(testNow().addDays(3), paris(), countingIDs());
    EXPECT_EQ(later.issues.first().updated, seed().issues.first().updated.addDays(3));
    EXPECT_EQ(later.issues.first().dueDate, QDate(2026, 11, 3));
    EXPECT_EQ(later.threads[u"SUP-41"_s].first().created,
              seed().threads[u"SUP-41"_s].first().created.addDays(3));
}

TEST(DemoSeed, statusesGoFromTheBacklogToTheClosedOnes)
{
    using enum StatusCategory;
    QList<StatusCategory> categories;
    for (const IssueStatus &status : DemoSeed::statuses())
        categories += status.category();
    EXPECT_EQ(categories,
              (QList<StatusCategory>{Backlog, Todo, InProgress, InProgress, Done, Cancelled}));
}

TEST(DemoSeed, prioritiesGoFromTheMostToTheLeastPressing)
{
    using enum PriorityLevel;
    QList<PriorityLevel> levels;
    for (const IssuePriority &priority : DemoSeed::priorities())
        levels += priority.level();
    EXPECT_EQ(levels, (QList<PriorityLevel>{Urgent, High, Medium, Low, Low}));
}

TEST(DemoSeed, onlyTheUserAndTheCustomerHaveAnAddress)
{
    EXPECT_EQ(DemoSeed::users().size(), 6);
    EXPECT_EQ(DemoSeed::users().first(), DemoSeed::me());
    EXPECT_TRUE(DemoSeed::me().email->contains(u'@'));
    EXPECT_TRUE(DemoSeed::customer().email->contains(u'@'));
    for (const JiraUser &user : DemoSeed::users().mid(1))
        EXPECT_FALSE(user.email);
    EXPECT_FALSE(DemoSeed::users().contains(DemoSeed::customer()));
}

TEST(DemoSeed, everyPersonIsTheOneNamed)
{
    using enum DemoSeed::Person;
    EXPECT_EQ(DemoSeed::user(Me).id, u"u-me"_s);
    EXPECT_EQ(DemoSeed::user(Nora).id, u"u-nora"_s);
    EXPECT_EQ(DemoSeed::user(Basile).id, u"u-basile"_s);
    EXPECT_EQ(DemoSeed::user(Maud).id, u"u-maud"_s);
    EXPECT_EQ(DemoSeed::user(Yann).id, u"u-yann"_s);
    EXPECT_EQ(DemoSeed::user(Elsa).id, u"u-elsa"_s);
    EXPECT_EQ(DemoSeed::user(Customer).id, u"u-client"_s);
}

TEST(DemoSeed, onlySupportIsAServiceProjectAndHasThreeTypes)
{
    for (const Project &project : DemoSeed::projects()) {
        const bool isSupport = project.key == u"SUP"_s;
        EXPECT_EQ(project.isServiceDesk, isSupport);
        EXPECT_EQ(project.issueTypes.size(), isSupport ? 3 : 5);
    }
    EXPECT_EQ(DemoSeed::projects().last().issueTypes.first().name, u"Story"_s);
}

TEST(DemoSeed, issueTypesCoverEveryFamily)
{
    using enum Model::IssueTypeKind;
    QList<IssueType::Kind> kinds;
    for (const IssueType &type : DemoSeed::issueTypes())
        kinds += type.kind();
    EXPECT_EQ(kinds, (QList<IssueType::Kind>{Epic, Story, Task, Bug, Subtask}));
}
