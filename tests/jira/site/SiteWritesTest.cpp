#include "jira/site/SiteClientTest.h"
#include "richtext/ADFMarkdown.h"

using namespace Qt::StringLiterals;

INSTANTIATE_TEST_SUITE_P(Roads, SiteClientTest,
                         testing::Values(Road{"CloudOverTcp", {}, true},
                                         Road{"DataCenterOverTls", Certificates::Kind::Good,
                                              false}),
                         [](const auto &info) { return info.param.name; });

TEST_P(SiteClientTest, MovesAnIssueByItsWorkflow)
{
    const QString key =
        keyWhere([](const SiteIssue &issue) { return issue.projectKey == "PORT"_L1; });
    const auto offered = resultOf(client.transitions(key));
    ASSERT_EQ(offered.size(), simulated.site().transitionsOf(stored(key)).size());
    resultOf(client.perform(offered.last(), key));
    EXPECT_EQ(stored(key).statusId, offered.last().to.id());
}

TEST_P(SiteClientTest, ChangesEveryField)
{
    const QString key = u"PORT-2"_s;
    const auto update = [&](const auto &value) { resultOf(client.update(key, {value})); };
    update(IssueFieldUpdate::Summary{u"L’été : « + & % # é »"_s});
    update(IssueFieldUpdate::Labels{{u"un"_s, u"deux"_s}});
    update(IssueFieldUpdate::DueDate{QDate(2026, 11, 30)});
    update(IssueFieldUpdate::Priority{resultOf(client.priorities()).first()});
    update(IssueFieldUpdate::Description{ADFMarkdown::document(u"# Titre\n\n- un\n- **deux**"_s)});

    const Issue issue = resultOf(client.issue(key));
    EXPECT_EQ(issue.summary, u"L’été : « + & % # é »"_s);
    EXPECT_EQ(issue.labels, (QStringList{u"un"_s, u"deux"_s}));
    EXPECT_EQ(issue.dueDate, QDate(2026, 11, 30));
    EXPECT_EQ(issue.priority->name(), u"Highest"_s);
    EXPECT_EQ(issue.description->content->size(), 2);
}

TEST_P(SiteClientTest, ClearsWhatIsAbsent)
{
    const QString key = keyWhere([](const SiteIssue &issue) {
        return issue.due.has_value() && !issue.assignee.isEmpty() && !issue.labels.isEmpty();
    });
    resultOf(client.update(key, {IssueFieldUpdate::DueDate{}}));
    resultOf(client.update(key, {IssueFieldUpdate::Description{}}));
    resultOf(client.update(key, {IssueFieldUpdate::Labels{}}));
    resultOf(client.assign(key, std::nullopt));
    EXPECT_EQ(stored(key).due, std::nullopt);
    EXPECT_TRUE(stored(key).description.isEmpty());
    EXPECT_TRUE(stored(key).labels.isEmpty());
    EXPECT_TRUE(stored(key).assignee.isEmpty());
}

TEST_P(SiteClientTest, AssignsAnIssue)
{
    const auto users = resultOf(client.assignableUsers(u"PORT"_s));
    resultOf(client.assign(u"PORT-2"_s, users.last()));
    EXPECT_EQ(stored(u"PORT-2"_s).assignee, users.last().id);
}

TEST_P(SiteClientTest, PostsACommentAndANoteForAgents)
{
    const QString key = u"AIDE-1"_s;
    const Comment open =
        resultOf(client.addComment(key, ADFMarkdown::document(u"Vu, *merci*."_s), false));
    EXPECT_FALSE(open.isInternal);
    EXPECT_FALSE(stored(key).comments.last().isInternal);
    const Comment note =
        resultOf(client.addComment(key, ADFMarkdown::document(u"Entre nous."_s), true));
    EXPECT_TRUE(note.isInternal);
    EXPECT_TRUE(stored(key).comments.last().isInternal);
    EXPECT_EQ(resultOf(client.comments(key)).last().id, note.id);
}

TEST_P(SiteClientTest, CreatesAnIssue)
{
    const QString key = resultOf(client.create({.projectKey = u"PORT"_s,
                                                .issueTypeID = u"10003"_s,
                                                .summary = u"Neuf"_s,
                                                .description = ADFMarkdown::document(u"Texte"_s),
                                                .priorityID = u"2"_s,
                                                .assigneeID = u"5f0c0002"_s,
                                                .labels = {u"a"_s}}));
    const Issue issue = resultOf(client.issue(key));
    EXPECT_EQ(issue.type->name, u"Bug"_s);
    EXPECT_EQ(issue.priority->id(), u"2"_s);
    EXPECT_EQ(issue.assignee->id, u"5f0c0002"_s);
    EXPECT_EQ(issue.reporter->id, simulated.site().me);
    EXPECT_EQ(issue.labels, QStringList{u"a"_s});
}

TEST_P(SiteClientTest, AnIssueWithoutATypeIsRefusedInTheWordsOfTheSite)
{
    try {
        resultOf(client.create({.projectKey = u"PORT"_s,
                                .issueTypeID = {},
                                .summary = u"Neuf"_s,
                                .description = {},
                                .priorityID = {},
                                .assigneeID = {},
                                .labels = {}}));
        ADD_FAILURE() << "a type is needed";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.message(), u"issuetype : Spécifiez un type de ticket valide."_s);
    }
}

TEST_P(SiteClientTest, FilesGoUpAndComeBackWithoutCredentialsLeavingTheSite)
{
    const QString key = u"PORT-2"_s;
    const QByteArray content = QByteArray("--\r\n\0\xFF", 6) + QByteArray(100'000, 'x');
    const auto sent = resultOf(client.uploadAttachments(
        key, {writtenFile(u"l'\"été\".bin"_s, content), writtenFile(u"vide.txt"_s, {})}));
    ASSERT_EQ(sent.size(), 2);
    EXPECT_EQ(sent[0].filename, u"l''été'.bin"_s);
    EXPECT_EQ(simulated.site().attachment(sent[0].id)->content, content);

    QFile local(resultOf(client.download(sent[0])).toLocalFile());
    ASSERT_TRUE(local.open(QIODevice::ReadOnly));
    EXPECT_EQ(local.readAll(), content);
    // The file server rejects requests with credentials; it must have received exactly one request.
    ASSERT_EQ(simulated.files().journal().size(), 1);
    EXPECT_TRUE(simulated.files().journal().first().header("Authorization").isNull());
    EXPECT_TRUE(resultOf(client.download(sent[1])).isLocalFile());

    resultOf(client.deleteAttachment(sent[0].id));
    EXPECT_EQ(simulated.site().attachment(sent[0].id), nullptr);
}

TEST_P(SiteClientTest, AFileThatIsTooLargeIsToldSo)
{
    simulated.site().largestUpload = 1000;
    try {
        resultOf(client.uploadAttachments(u"PORT-2"_s,
                                          {writtenFile(u"grand.bin"_s, QByteArray(2000, 'x'))}));
        ADD_FAILURE() << "the site takes no such file";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.message(), u"Fichier trop volumineux pour Jira."_s);
    }
}

TEST_P(SiteClientTest, AnUploadCancelledInTheMiddleLeavesNothingAndTheNextOneWorks)
{
    const QString key = u"PORT-2"_s;
    const auto before = stored(key).attachments.size();
    // More than the system keeps of what a server does not read.
    const QUrl file = writtenFile(u"grand.bin"_s, QByteArray(24 << 20, 'x'));
    simulated.server().readAtMost(1 << 20);
    std::stop_source stop;
    qint64 sent = 0;
    const TaskResult cancelled(
        client.uploadAttachments(key, {file}, stop.get_token(),
                                 [&](const UploadProgress &progress) { sent = progress.sent; }));
    ASSERT_TRUE(runUntil([&] { return sent >= 1 << 16; }));
    stop.request_stop();
    EXPECT_THROW(cancelled.value(), Cancelled);
    simulated.server().readOn();
    ASSERT_TRUE(runUntil([&] { return simulated.server().openConnections() == 0; }));
    EXPECT_EQ(stored(key).attachments.size(), before);

    const auto next =
        resultOf(client.uploadAttachments(key, {writtenFile(u"petit.txt"_s, "salut")}));
    ASSERT_EQ(next.size(), 1);
    EXPECT_EQ(simulated.site().attachment(next[0].id)->content, "salut");
    EXPECT_EQ(stored(key).attachments.size(), before + 1);
}

TEST_P(SiteClientTest, AWrongTokenIsRefused)
{
    simulated.site().token = simulated.site().personalToken = u"un autre"_s;
    EXPECT_THROW(resultOf(client.currentUser()), JiraError);
}
