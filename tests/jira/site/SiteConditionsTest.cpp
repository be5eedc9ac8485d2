#include "jira/site/SiteClientTest.h"
#include "model/JiraError.h"

using namespace Qt::StringLiterals;

namespace {

/// The text that the user reads if the operation fails; empty if it succeeds.
template <typename T>
QString failureOf(QCoro::Task<T> task)
{
    const TaskResult<T> result(std::move(task));
    EXPECT_TRUE(runUntil([&] { return result.isDone(); })) << "the operation never ended";
    try {
        result.value();
    } catch (const Failure &failure) {
        return failure.message();
    }
    return {};
}

} // namespace

TEST_P(SiteClientTest, ReadsAnswersInEveryForm)
{
    const QString key = simulated.site().issues().first().key;
    const auto projects = resultOf(client.projects());
    const auto issues = resultOf(client.issues(IssueScope::myIssues()));
    const Issue issue = resultOf(client.issue(key));
    ASSERT_FALSE(issues.isEmpty());
    for (const AnswerForm form :
         {AnswerForm::Packed, AnswerForm::InChunks, AnswerForm::PackedInChunks}) {
        simulated.transferAs(form);
        EXPECT_EQ(resultOf(client.projects()), projects);
        EXPECT_EQ(resultOf(client.issues(IssueScope::myIssues())), issues);
        EXPECT_EQ(resultOf(client.issue(key)), issue);
    }
    EXPECT_EQ(failureOf(client.assign(key, std::nullopt)), QString());
}

TEST_P(SiteClientTest, ReadsWhereThePicturesOfProjectsAre)
{
    for (const Project &project : resultOf(client.projects()))
        EXPECT_EQ(project.avatarURL->port(), simulated.url().port());
}

TEST_P(SiteClientTest, FindsAMovedIssueByItsFormerKey)
{
    Site &site = simulated.site();
    SiteIssue &issue = *site.issue(site.issues().first().key);
    const QString former = issue.key;
    site.move(issue, former.startsWith("PORT-"_L1) ? u"FACT"_s : u"PORT"_s);
    EXPECT_EQ(resultOf(client.issue(former)).key, issue.key);
    EXPECT_EQ(keysOf(resultOf(client.search(former.toLower()))), QStringList{issue.key});
}
