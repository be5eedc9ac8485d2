#include "demo/DemoEdits.h"

#include "demo/DemoSamples.h"

using namespace Qt::StringLiterals;

namespace {

const QString key = u"T-1"_s;
const QString unknown = u"T-404"_s;

WorkflowTransition toReview()
{
    const IssueStatus status = DemoSeed::statuses().at(3);
    return {u"t4"_s, status.name(), status};
}

Attachment fileWith(const QString &id)
{
    Attachment file;
    file.id = id;
    return file;
}

class DemoEditsOnOneIssue : public testing::Test
{
protected:
    const Issue &issue() const { return *m_site.find(key); }
    void update(auto value) { DemoEdits::update(m_site, key, {std::move(value)}, testNow()); }

    DemoSite m_site = siteOf({sampleIssue(key)});
};

using DemoCreation = DemoEditsOnOneIssue;

IssueDraft draftIn(const QString &projectKey)
{
    IssueDraft draft;
    draft.projectKey = projectKey;
    draft.summary = u"Nouveau"_s;
    return draft;
}

} // namespace

TEST_F(DemoEditsOnOneIssue, openingTwiceLeavesOneEntryAtTheFront)
{
    m_site.history = words("A-1 T-1 B-1 T-1");
    DemoEdits::opened(m_site, key);
    DemoEdits::opened(m_site, key);
    EXPECT_EQ(m_site.history, words("T-1 A-1 B-1"));
}

TEST_F(DemoEditsOnOneIssue, performMovesDatesAndLogs)
{
    DemoEdits::perform(m_site, toReview(), key, testNow());
    EXPECT_EQ(issue().status, toReview().to);
    EXPECT_EQ(issue().updated, testNow());
    const ActivityEvent expected{testNow(), DemoSeed::me(),
                                 ActivityEvent::StatusChanged{u"À faire"_s, u"En revue"_s}};
    EXPECT_EQ(m_site.events[key], QList{expected});
}

TEST_F(DemoEditsOnOneIssue, performOnAnUnknownKeySucceedsAndLogsAnAbsentOldStatus)
{
    DemoEdits::perform(m_site, toReview(), unknown, testNow());
    EXPECT_FALSE(m_site.store.contains(unknown));
    ASSERT_EQ(m_site.events[unknown].size(), 1);
    EXPECT_EQ(*m_site.events[unknown].first().statusChange(),
              (ActivityEvent::StatusChanged{std::nullopt, u"En revue"_s}));
}

TEST_F(DemoEditsOnOneIssue, updateOfAnUnknownKeyFails)
{
    const auto http = httpFailure([this] {
        DemoEdits::update(m_site, unknown, {IssueFieldUpdate::Summary{u"X"_s}}, testNow());
    });
    EXPECT_EQ(http, (JiraError::Http{404, {}}));
    EXPECT_FALSE(m_site.store.contains(unknown));
}

TEST_F(DemoEditsOnOneIssue, updateChangesTheOneFieldAndTheDateWithoutALogEntry)
{
    Issue expected = issue();
    expected.summary = u"Autre"_s;
    expected.updated = testNow();
    update(IssueFieldUpdate::Summary{u"Autre"_s});
    EXPECT_EQ(issue(), expected);
    EXPECT_TRUE(m_site.events.isEmpty());
}

TEST_F(DemoEditsOnOneIssue, updateSetsPriorityAndLabels)
{
    update(IssueFieldUpdate::Priority{DemoSeed::priorities().at(1)});
    update(IssueFieldUpdate::Labels{words("un deux")});
    EXPECT_EQ(issue().priority, DemoSeed::priorities().at(1));
    EXPECT_EQ(issue().labels, words("un deux"));
}

TEST_F(DemoEditsOnOneIssue, updateWithAnAbsentPayloadClearsDescriptionAndDueDate)
{
    const ADFNode document{.type = u"doc"_s, .version = 1};
    update(IssueFieldUpdate::Description{document});
    update(IssueFieldUpdate::DueDate{QDate(2026, 11, 5)});
    EXPECT_EQ(issue().description, document);
    EXPECT_EQ(issue().dueDate, QDate(2026, 11, 5));
    update(IssueFieldUpdate::Description{});
    update(IssueFieldUpdate::DueDate{});
    EXPECT_FALSE(issue().description);
    EXPECT_FALSE(issue().dueDate);
}

TEST_F(DemoEditsOnOneIssue, listsHandedOutBeforeAnEditStayAsTheyWere)
{
    const SharedIssue before = *m_site.store.constFind(key);
    update(IssueFieldUpdate::Summary{u"Autre"_s});
    EXPECT_EQ(before->summary, u"Exemple"_s);
}

TEST_F(DemoEditsOnOneIssue, assignSetsTheUserAndLogsTheName)
{
    const JiraUser nora = DemoSeed::users().at(1);
    DemoEdits::assign(m_site, key, nora, testNow());
    EXPECT_EQ(issue().assignee, nora);
    EXPECT_EQ(issue().updated, testNow());
    const ActivityEvent expected{testNow(), DemoSeed::me(),
                                 ActivityEvent::AssigneeChanged{nora.name}};
    EXPECT_EQ(m_site.events[key], QList{expected});
}

TEST_F(DemoEditsOnOneIssue, unassignLogsAnAbsentName)
{
    DemoEdits::assign(m_site, key, DemoSeed::me(), testNow());
    DemoEdits::assign(m_site, key, std::nullopt, testNow());
    EXPECT_FALSE(issue().assignee);
    EXPECT_FALSE(m_site.events[key].last().assigneeChange()->to);
}

TEST_F(DemoEditsOnOneIssue, assignOnAnUnknownKeyLeavesAnEvent)
{
    DemoEdits::assign(m_site, unknown, DemoSeed::me(), testNow());
    EXPECT_FALSE(m_site.store.contains(unknown));
    EXPECT_EQ(m_site.events[unknown].size(), 1);
}

TEST_F(DemoEditsOnOneIssue, commentDoesNotDateOrLogTheIssue)
{
    const Issue before = issue();
    Comment comment;
    comment.id = u"1"_s;
    DemoEdits::append(m_site, key, comment);
    EXPECT_EQ(m_site.threads[key], QList{comment});
    EXPECT_EQ(issue(), before);
    EXPECT_TRUE(m_site.events.isEmpty());
}

TEST_F(DemoEditsOnOneIssue, attachAppendsAndDatesTheIssue)
{
    DemoEdits::attach(m_site, key, {fileWith(u"a"_s)}, testNow());
    DemoEdits::attach(m_site, key, {fileWith(u"b"_s), fileWith(u"c"_s)}, testNow());
    EXPECT_EQ(m_site.files[key], (QList{fileWith(u"a"_s), fileWith(u"b"_s), fileWith(u"c"_s)}));
    EXPECT_EQ(issue().updated, testNow());
    EXPECT_TRUE(m_site.events.isEmpty());
}

TEST_F(DemoEditsOnOneIssue, attachToAnUnknownKeyKeepsTheFiles)
{
    DemoEdits::attach(m_site, unknown, {fileWith(u"a"_s)}, testNow());
    EXPECT_EQ(m_site.files[unknown].size(), 1);
    EXPECT_FALSE(m_site.store.contains(unknown));
}

TEST_F(DemoEditsOnOneIssue, detachRemovesTheIdEverywhereAndNothingElse)
{
    const Issue before = issue();
    m_site.files = {{key, {fileWith(u"a"_s), fileWith(u"b"_s), fileWith(u"a"_s)}},
                    {unknown, {fileWith(u"a"_s)}}};
    DemoEdits::detach(m_site, u"a"_s);
    EXPECT_EQ(m_site.files[key], QList{fileWith(u"b"_s)});
    EXPECT_TRUE(m_site.files[unknown].isEmpty());
    EXPECT_EQ(issue(), before);
    DemoEdits::detach(m_site, u"nobody"_s);
    EXPECT_EQ(m_site.files[key], QList{fileWith(u"b"_s)});
}

TEST_F(DemoCreation, takesTheNextNumberOfTheProject)
{
    DemoSite seeded = DemoSite::from(testSeed());
    const auto next = [&](const QString &project) {
        return DemoEdits::create(seeded, draftIn(project), u"id"_s, testNow());
    };
    EXPECT_EQ(next(u"MOB"_s), u"MOB-115"_s);
    EXPECT_EQ(next(u"WEB"_s), u"WEB-216"_s);
    EXPECT_EQ(next(u"DS"_s), u"DS-39"_s);
    EXPECT_EQ(next(u"SUP"_s), u"SUP-45"_s);
    EXPECT_EQ(next(u"MOB"_s), u"MOB-116"_s);
}

TEST_F(DemoCreation, unknownProjectBeginsAtOneWithAPlainTask)
{
    EXPECT_EQ(DemoEdits::create(m_site, draftIn(u"NEW"_s), u"id"_s, testNow()), u"NEW-1"_s);
    EXPECT_EQ(m_site.find(u"NEW-1"_s)->type, (IssueType{u"10002"_s, u"Tâche"_s, false, 0}));
}

TEST_F(DemoCreation, fillsTheIssueFromTheDraft)
{
    IssueDraft draft = draftIn(u"MOB"_s);
    draft.issueTypeID = u"10003"_s;
    draft.priorityID = u"2"_s;
    draft.assigneeID = u"u-nora"_s;
    draft.labels = words("un deux");
    draft.description = ADFNode{.type = u"doc"_s, .version = 1};

    Issue expected;
    expected.id = u"id"_s;
    expected.key = u"MOB-1"_s;
    expected.summary = u"Nouveau"_s;
    expected.status = DemoSeed::statuses().at(1);
    expected.priority = DemoSeed::priorities().at(1);
    expected.assignee = DemoSeed::users().at(1);
    expected.reporter = DemoSeed::me();
    expected.labels = draft.labels;
    expected.type = DemoSeed::issueTypes().at(3);
    expected.projectKey = u"MOB"_s;
    expected.created = testNow();
    expected.updated = testNow();
    expected.description = draft.description;

    const QString created = DemoEdits::create(m_site, draft, u"id"_s, testNow());
    EXPECT_EQ(*m_site.find(created), expected);
    EXPECT_EQ(m_site.events[created],
              QList{(ActivityEvent{testNow(), DemoSeed::me(), ActivityEvent::Created{}})});
}

TEST_F(DemoCreation, identifiersThatMatchNothingCountAsAbsent)
{
    IssueDraft draft = draftIn(u"SUP"_s);
    draft.issueTypeID = u"10000"_s; // epics cannot be created in this project
    draft.priorityID = u"99"_s;
    draft.assigneeID = u"u-client"_s;
    const Issue issue = *m_site.find(DemoEdits::create(m_site, draft, u"id"_s, testNow()));
    EXPECT_EQ(issue.type->name, u"Tâche"_s);
    EXPECT_FALSE(issue.hasPriority());
    EXPECT_FALSE(issue.hasAssignee());
}

TEST_F(DemoCreation, draftWithoutIdentifiersGivesAPlainTask)
{
    const Issue issue =
        *m_site.find(DemoEdits::create(m_site, draftIn(u"MOB"_s), u"id"_s, testNow()));
    EXPECT_EQ(issue.type->id, u"10002"_s);
    EXPECT_FALSE(issue.hasPriority());
    EXPECT_FALSE(issue.hasAssignee());
    EXPECT_FALSE(issue.description);
}

TEST_F(DemoCreation, putsTheIssueIntoTheRunningSprint)
{
    const QString created = DemoEdits::create(m_site, draftIn(u"MOB"_s), u"id"_s, testNow());
    EXPECT_EQ(m_site.sprint, QSet{created});
}
