#include "jira/SiteRequests.h"

#include "richtext/ADFNodes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The method, path and query as they are sent.
std::string sent(const JiraRequest &request)
{
    const QUrl url = request.url(QUrl(u"https://h.fr"_s)).value_or(QUrl());
    return (verb(request.method) + ' ' + url.toEncoded().mid(qstrlen("https://h.fr/")))
        .toStdString();
}

TEST(SiteRequests, ReadsOfTheSite)
{
    EXPECT_EQ(sent(SiteRequests::currentUser()), "GET rest/api/3/myself");
    EXPECT_EQ(sent(SiteRequests::projects(0)),
              "GET rest/api/3/project/search?maxResults=100&orderBy=name&startAt=0");
    EXPECT_EQ(sent(SiteRequests::projects(100)),
              "GET rest/api/3/project/search?maxResults=100&orderBy=name&startAt=100");
    EXPECT_EQ(sent(SiteRequests::project(u"NOV"_s)), "GET rest/api/3/project/NOV");
    EXPECT_EQ(sent(SiteRequests::statuses(u"NOV"_s)), "GET rest/api/3/project/NOV/statuses");
    EXPECT_EQ(sent(SiteRequests::priorities()), "GET rest/api/3/priority/search?maxResults=100");
    EXPECT_EQ(sent(SiteRequests::prioritiesOfOlderSites()), "GET rest/api/3/priority");
}

TEST(SiteRequests, ReadsOfUsers)
{
    EXPECT_EQ(sent(SiteRequests::assignableUsers(u"NOV"_s)),
              "GET rest/api/3/user/assignable/search?maxResults=200&project=NOV");
    EXPECT_EQ(sent(SiteRequests::searchUsers(u"Zoé & co"_s)),
              "GET rest/api/3/user/search?maxResults=20&query=Zo%C3%A9%20%26%20co");
}

TEST(SiteRequests, IssueBringsListFieldsDocumentAndAttachments)
{
    const JiraRequest request = SiteRequests::issue(u"NOV-1"_s);
    EXPECT_EQ(request.path.join(u'/'), u"rest/api/3/issue/NOV-1"_s);
    EXPECT_EQ(request.query[u"expand"_s], u"renderedFields"_s);
    EXPECT_EQ(request.query[u"fields"_s],
              u"summary,status,priority,assignee,reporter,labels,issuetype,project,created,"
              "updated,duedate,parent,subtasks,description,attachment"_s);
    EXPECT_EQ(request.query.size(), 2);
}

TEST(SiteRequests, ReadsOfAnIssue)
{
    EXPECT_EQ(
        sent(SiteRequests::comments(u"NOV-1"_s)),
        "GET rest/api/3/issue/NOV-1/comment?expand=renderedBody&maxResults=100&orderBy=created");
    EXPECT_EQ(sent(SiteRequests::transitions(u"NOV-1"_s)),
              "GET rest/api/3/issue/NOV-1/transitions");
}

TEST(SiteRequests, ReadsHaveNoBody)
{
    EXPECT_EQ(SiteRequests::issue(u"NOV-1"_s).body, std::nullopt);
}

TEST(SiteRequests, WritesGoToTheirPlaces)
{
    EXPECT_EQ(sent(SiteRequests::perform({}, u"NOV-1"_s)),
              "POST rest/api/3/issue/NOV-1/transitions");
    EXPECT_EQ(sent(SiteRequests::update(u"NOV-1"_s, {})), "PUT rest/api/3/issue/NOV-1");
    EXPECT_EQ(sent(SiteRequests::assign(u"NOV-1"_s, {})), "PUT rest/api/3/issue/NOV-1/assignee");
    EXPECT_EQ(sent(SiteRequests::addComment(u"NOV-1"_s, {}, CommentAudience::Everyone)),
              "POST rest/api/3/issue/NOV-1/comment");
    EXPECT_EQ(sent(SiteRequests::create({})), "POST rest/api/3/issue");
}

TEST(SiteRequests, WritesCarryTheirBodies)
{
    const ADFNode note = ADF::document({});
    EXPECT_EQ(SiteRequests::addComment(u"NOV-1"_s, note, CommentAudience::Agents).body,
              RequestBody::comment(note, CommentAudience::Agents));
    EXPECT_EQ(SiteRequests::assign(u"NOV-1"_s, {}).body, R"({"accountId":null})");
}

} // namespace
