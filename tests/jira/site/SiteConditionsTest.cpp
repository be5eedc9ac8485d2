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

ADFNode longDocument(qsizetype length)
{
    ADFNode text;
    text.type = u"text"_s;
    text.text = QString(length, u'a');
    ADFNode paragraph;
    paragraph.type = u"paragraph"_s;
    paragraph.content = {text};
    ADFNode document;
    document.type = u"doc"_s;
    document.version = 1;
    document.content = {paragraph};
    return document;
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

TEST_P(SiteClientTest, ATextThatIsTooLongIsRefusedInTheSitesWords)
{
    const QString key = simulated.site().issues().first().key;
    EXPECT_EQ(failureOf(client.addComment(key, longDocument(32767), false)), QString());
    EXPECT_EQ(
        failureOf(client.addComment(key, longDocument(32768), false)),
        u"comment : Le texte saisi est trop long. Il dépasse la limite autorisée de 32 767 caractères."_s);
    EXPECT_NE(failureOf(client.update(key, {IssueFieldUpdate::Description{longDocument(32768)}})),
              QString());
}
