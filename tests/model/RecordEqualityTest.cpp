#include "model/Comment.h"
#include "model/Issue.h"
#include "model/IssueEdits.h"
#include "model/Project.h"

#include <QTimeZone>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Issue sampleIssue()
{
    Issue issue;
    issue.id = u"10001"_s;
    issue.key = u"APP-1"_s;
    issue.description =
        ADFNode{u"doc"_s, {}, QList{ADFNode{u"paragraph"_s, {}, {}, {}, {}, {}}}, {}, {}, 1};
    issue.created = QDateTime({2026, 10, 29}, {13, 32, 0, 250}, QTimeZone::utc());
    return issue;
}

/// A copy of the sample with one change.
template <typename Change>
Issue changed(Change change)
{
    Issue issue = sampleIssue();
    change(issue);
    return issue;
}

TEST(RecordEquality, IssuesAreComparedDeeply)
{
    EXPECT_EQ(sampleIssue(), sampleIssue());
    EXPECT_NE(sampleIssue(),
              changed([](Issue &i) { i.description->content->first().type = u"heading"_s; }));
    EXPECT_NE(sampleIssue(), changed([](Issue &i) { i.hasDetails = true; }));
    EXPECT_NE(sampleIssue(), changed([](Issue &i) { i.created = i.created.addMSecs(1); }));
    EXPECT_NE(sampleIssue(), changed([](Issue &i) { i.activity.append(ActivityEvent()); }));
    EXPECT_NE(sampleIssue(), changed([](Issue &i) { i.attachments.append(Attachment()); }));
    EXPECT_NE(sampleIssue(), changed([](Issue &i) { i.subtasks.append(IssueRef()); }));
    EXPECT_NE(sampleIssue(), changed([](Issue &i) { i.parent = IssueRef(); }));
    EXPECT_NE(sampleIssue(), changed([](Issue &i) { i.dueDate = QDate(2026, 10, 29); }));
}

TEST(RecordEquality, AbsentIsNotEmpty)
{
    JiraUser withoutEmail{u"1"_s, u"Odile"_s, {}, {}};
    JiraUser withEmptyEmail{u"1"_s, u"Odile"_s, QString(u""_s), {}};
    EXPECT_NE(withoutEmail, withEmptyEmail);
    EXPECT_NE(qHash(withoutEmail), qHash(withEmptyEmail));
    EXPECT_NE(IssueRef(), (IssueRef{{}, {}, {}, IssueStatus(), {}}));
}

TEST(RecordEquality, EventsOfDifferentKindsDiffer)
{
    const ActivityEvent creation;
    ActivityEvent unassignment;
    unassignment.kind = ActivityEvent::AssigneeChanged{};
    EXPECT_NE(creation, unassignment);
    EXPECT_TRUE(creation.isCreation());
    EXPECT_FALSE(unassignment.isCreation());
    EXPECT_EQ(unassignment.assigneeChange()->to, std::nullopt);
    EXPECT_EQ(unassignment.statusChange(), nullptr);
}

TEST(RecordEquality, ProjectsHashByAllFields)
{
    const Project project{u"1"_s, u"APP"_s, u"Application"_s, {}, {}, false};
    Project withType = project;
    withType.issueTypes = {IssueType{u"1"_s, u"Bug"_s, false, 0}};
    EXPECT_EQ(qHash(project), qHash(Project(project)));
    EXPECT_NE(project, withType);
    EXPECT_NE(qHash(project), qHash(withType));
}

TEST(RecordEquality, CommentsWithOtherVisibilityDiffer)
{
    Comment comment;
    Comment restricted;
    restricted.restrictedTo = u"Développeurs"_s;
    EXPECT_NE(comment, restricted);
}

TEST(IssueFieldUpdate, WithoutPayloadClearsDueDateAndDescription)
{
    const IssueFieldUpdate noDueDate{IssueFieldUpdate::DueDate{}};
    const IssueFieldUpdate noDescription{IssueFieldUpdate::Description{}};
    EXPECT_EQ(std::get<IssueFieldUpdate::DueDate>(noDueDate.value).day, std::nullopt);
    EXPECT_EQ(std::get<IssueFieldUpdate::Description>(noDescription.value).document, std::nullopt);
    EXPECT_NE(noDueDate, noDescription);
    EXPECT_NE(noDueDate, (IssueFieldUpdate{IssueFieldUpdate::DueDate{QDate(2026, 10, 29)}}));
    EXPECT_NE(noDescription, (IssueFieldUpdate{IssueFieldUpdate::Description{ADFNode()}}));
}

} // namespace
