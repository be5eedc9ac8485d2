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

const auto refusedCredentials =
    u"Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API."_s;

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

TEST_P(SiteClientTest, BeyondTheLimitOfRequestsTheSitesWordsAreShown)
{
    simulated.site().requestsLeft = 0;
    EXPECT_EQ(failureOf(client.currentUser()), u"Rate limit exceeded."_s);
    EXPECT_EQ(failureOf(client.assign(simulated.site().issues().first().key, std::nullopt)),
              u"Rate limit exceeded."_s);
    EXPECT_EQ(simulated.journal().size(), 2);
}

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

TEST_P(SiteClientTest, AnExpiredTokenIsNoEmptyList)
{
    JiraCredentials expired = client.credentials();
    expired.token = u"expired"_s;
    JiraClient other{expired, clock, calendar, folder.filePath(u"cache"_s)};
    for (const auto anybody :
         {Site::Anybody::Refused, Site::Anybody::Answered, Site::Anybody::AnsweredAndNamed}) {
        simulated.site().anybody = anybody;
        EXPECT_EQ(failureOf(other.issues(IssueScope::myIssues())), refusedCredentials);
    }
    EXPECT_EQ(failureOf(other.projects()), refusedCredentials);
    EXPECT_EQ(failureOf(other.search(u"portail"_s)), refusedCredentials);
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

TEST_P(SiteClientTest, TwoSitesWithTheSameNumbersKeepTheirOwnFiles)
{
    SimulatedSite second{SiteSeed::company(300, clock.now()), GetParam().certificate};
    JiraCredentials credentials = client.credentials();
    credentials.site = second.url();
    JiraClient other{credentials, clock, calendar, folder.filePath(u"cache"_s)};
    const auto attached = [](SimulatedSite &simulated, const QByteArray &content) {
        Site &site = simulated.site();
        SiteIssue &issue = *site.issue(site.issues().first().key);
        site.attach(issue,
                    {.filename = u"a.txt"_s, .mimeType = u"text/plain"_s, .content = content});
        return issue.key;
    };
    const auto contentOf = [](JiraClient &client, const QString &key) {
        const Attachment attachment = resultOf(client.issue(key)).attachments.last();
        QFile file(resultOf(client.download(attachment)).toLocalFile());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QString key = attached(simulated, "here");
    EXPECT_EQ(attached(second, "over"), key);
    EXPECT_EQ(contentOf(client, key), "here");
    EXPECT_EQ(contentOf(other, key), "over");
}

TEST_P(SiteClientTest, DataCenterWithVersion2OnlyIsNotUsable)
{
    simulated.site().edition = Site::Edition::DataCenter;
    EXPECT_EQ(failureOf(client.currentUser()),
              u"null for uri: "_s + simulated.url().toString() + u"/rest/api/3/myself"_s);
    EXPECT_EQ(simulated.journal().size(), 1);
}
