#include "jira/JiraRequest.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QUrl Site(u"https://jira.exemple.fr:8443"_s);

QByteArray addressOf(const JiraRequest &request)
{
    return request.url(Site).value_or(QUrl()).toEncoded();
}

TEST(JiraRequest, PathStandsBehindTheSite)
{
    EXPECT_EQ(addressOf({.path = {u"rest"_s, u"api"_s, u"3"_s, u"myself"_s}}),
              "https://jira.exemple.fr:8443/rest/api/3/myself");
}

TEST(JiraRequest, QueryGoesOutByName)
{
    EXPECT_EQ(addressOf({.path = {u"p"_s},
                         .query = {{u"startAt"_s, u"0"_s},
                                   {u"orderBy"_s, u"name"_s},
                                   {u"maxResults"_s, u"100"_s}}}),
              "https://jira.exemple.fr:8443/p?maxResults=100&orderBy=name&startAt=0");
}

TEST(JiraRequest, WithoutQueryThereIsNoQuestionMark)
{
    EXPECT_FALSE(addressOf({.path = {u"p"_s}}).contains('?'));
}

TEST(JiraRequest, SignsOfAValueArriveAsThemselves)
{
    EXPECT_EQ(addressOf({.path = {u"p"_s}, .query = {{u"query"_s, u"a+b %41 &c#d=é/?\""_s}}}),
              "https://jira.exemple.fr:8443/p?query=a%2Bb%20%2541%20%26c%23d%3D%C3%A9%2F%3F%22");
}

TEST(JiraRequest, SignsOfAKeyMakeNoOtherPath)
{
    EXPECT_EQ(addressOf({.path = {u"issue"_s, u"A/b?c#d e"_s}}),
              "https://jira.exemple.fr:8443/issue/A%2Fb%3Fc%23d%20e");
}

TEST(JiraRequest, OfTheSiteOnlyTheOriginCounts)
{
    EXPECT_EQ(JiraRequest{.path = {u"p"_s}}.url(QUrl(u"http://h.fr/x?y#z"_s)),
              QUrl(u"http://h.fr/p"_s));
}

TEST(JiraRequest, WithoutAHostThereIsNoAddress)
{
    EXPECT_EQ(JiraRequest{.path = {u"p"_s}}.url(QUrl()), std::nullopt);
    EXPECT_EQ(JiraRequest{.path = {u"p"_s}}.url(QUrl(u"mailto:a"_s)), std::nullopt);
}

TEST(JiraRequest, VerbsOfTheMethods)
{
    EXPECT_EQ(verb(JiraRequest::Method::Get), "GET");
    EXPECT_EQ(verb(JiraRequest::Method::Post), "POST");
    EXPECT_EQ(verb(JiraRequest::Method::Put), "PUT");
    EXPECT_EQ(verb(JiraRequest::Method::Delete), "DELETE");
}

TEST(JiraRequest, PageOfAnIssue)
{
    EXPECT_EQ(browseURL(Site, u"NOV-12"_s), QUrl(u"https://jira.exemple.fr:8443/browse/NOV-12"_s));
}

} // namespace
