#include "model/JiraError.h"
#include "richtext/ADFQueries.h"
#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;

namespace {

const JiraError Refused(JiraError::Http{400, u"Champ refusé."_s});

class AppStoreCommentsTest : public AppStoreFixture
{
protected:
    void SetUp() override
    {
        startSession();
        reloadWith({sampleIssue(u"WEB-1"_s)});
    }

    QCoro::Task<bool> comment(const QString &text)
    {
        return store->addComment(text, u"WEB-1"_s, CommentAudience::Everyone, {});
    }

    static IssueDraft draftIn(const QString &projectKey)
    {
        IssueDraft draft;
        draft.projectKey = projectKey;
        draft.summary = u"Un titre"_s;
        return draft;
    }
};

TEST_F(AppStoreCommentsTest, aCommentShowsOnlyWhenItIsStored)
{
    const TaskResult<bool> posted(comment(u"Bonjour"_s));
    EXPECT_TRUE(store->comments().value(u"WEB-1"_s).isEmpty());
    ASSERT_EQ(service->addCommentCalls.count(), 1);
    EXPECT_FALSE(service->addCommentCalls[0].argument<2>());
    Comment stored;
    stored.id = u"c1"_s;
    service->addCommentCalls[0].finish(stored);

    EXPECT_TRUE(posted.value());
    EXPECT_EQ(store->comments().value(u"WEB-1"_s), QList{stored});
}

TEST_F(AppStoreCommentsTest, aRefusedCommentGivesFalseAndAToastSoThatItsTextIsKept)
{
    const TaskResult<bool> posted(comment(u"Bonjour"_s));
    service->addCommentCalls[0].fail(Refused);

    EXPECT_FALSE(posted.value());
    ASSERT_EQ(store->toasts().size(), 1);
    EXPECT_EQ(store->toasts()[0].message, Refused.message());
    EXPECT_TRUE(store->toasts()[0].isError());
    EXPECT_FALSE(store->comments().contains(u"WEB-1"_s));
}

TEST_F(AppStoreCommentsTest, aCancelledCommentGivesFalseInSilence)
{
    const TaskResult<bool> posted(
        store->addComment(u"Note"_s, u"WEB-1"_s, CommentAudience::Agents, {}));
    EXPECT_TRUE(service->addCommentCalls[0].argument<2>());
    service->addCommentCalls[0].cancel();

    EXPECT_FALSE(posted.value());
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreCommentsTest, withoutAServiceNothingIsPostedOrCreated)
{
    store->signOut();
    const TaskResult<bool> posted(comment(u"Bonjour"_s));
    const TaskResult<std::optional<QString>> created(store->create(draftIn(u"WEB"_s)));
    const TaskResult<QList<JiraUser>> found(store->searchUsers(u"ma"_s));

    EXPECT_FALSE(posted.value());
    EXPECT_EQ(created.value(), std::nullopt);
    EXPECT_TRUE(found.value().isEmpty());
}

TEST_F(AppStoreCommentsTest, aMentionTypedByHandOfAUserKnownFromASearchBecomesALink)
{
    const JiraUser yann = sampleUser(u"u9"_s, u"Yann Le Goff"_s);
    const TaskResult<QList<JiraUser>> found(store->searchUsers(u"yan"_s));
    service->searchUsersCalls[0].finish({yann});
    ASSERT_EQ(found.value(), QList{yann});
    const TaskResult<bool> posted(comment(u"Vois avec @Yann Le Goff"_s));

    const auto mentioned = ADF::mentionedUsers(service->addCommentCalls[0].argument<1>());
    ASSERT_EQ(mentioned.size(), 1);
    EXPECT_EQ(mentioned[0].id, yann.id);
    service->addCommentCalls[0].cancel();
}

TEST_F(AppStoreCommentsTest, aFailedUserSearchIsEmptyAndSilent)
{
    const TaskResult<QList<JiraUser>> found(store->searchUsers(u"yan"_s));
    service->searchUsersCalls[0].fail(Refused);

    EXPECT_TRUE(found.value().isEmpty());
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreCommentsTest, anIssueCreatedInAnotherProjectIsFocusedAndOpenThoughNotListed)
{
    const TaskResult<std::optional<QString>> created(store->create(draftIn(u"API"_s)));
    answerEverything();
    service->createCalls[0].finish(u"API-7"_s);

    EXPECT_EQ(created.value(), u"API-7"_s);
    EXPECT_EQ(keys(store->issues()), QStringList());
    EXPECT_EQ(store->focusedKey(), u"API-7"_s);
    EXPECT_EQ(store->inspectorKey(), u"API-7"_s);
    EXPECT_EQ(preferences.text(u"lastProject"_s), u"API"_s);
    ASSERT_EQ(store->toasts().size(), 1);
    EXPECT_EQ(store->toasts()[0].message, u"API-7 créé"_s);
    EXPECT_EQ(store->toasts()[0].symbol, u"checkmark.circle.fill"_s);
    const TaskResult<void> opened(store->loadDetails(u"API-7"_s));
    EXPECT_TRUE(store->details().contains(u"API-7"_s));
}

TEST_F(AppStoreCommentsTest, aRefusedCreationGivesNothingAndLeavesTheScreenOpen)
{
    store->newIssue(u"WEB"_s);
    const TaskResult<std::optional<QString>> created(store->create(draftIn(u"WEB"_s)));
    service->createCalls[0].fail(Refused);

    EXPECT_EQ(created.value(), std::nullopt);
    EXPECT_TRUE(store->isCreating());
    EXPECT_EQ(preferences.text(u"lastProject"_s), std::nullopt);
    ASSERT_EQ(store->toasts().size(), 1);
    EXPECT_TRUE(store->toasts()[0].isError());
    EXPECT_EQ(store->focusedKey(), std::nullopt);
}

TEST_F(AppStoreCommentsTest, aCancelledCreationIsSilent)
{
    const TaskResult<std::optional<QString>> created(store->create(draftIn(u"WEB"_s)));
    service->createCalls[0].cancel();

    EXPECT_EQ(created.value(), std::nullopt);
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreCommentsTest, theDefaultProjectIgnoresALastProjectThatHasDisappeared)
{
    EXPECT_EQ(store->defaultProjectKey(), std::nullopt);
    preferences.setText(u"lastProject"_s, u"OLD"_s);
    answerEverything();
    service->projectsCalls.answerWith({sampleProject(u"WEB"_s), sampleProject(u"API"_s)});
    const TaskResult<void> started(store->startDemo());
    EXPECT_EQ(store->defaultProjectKey(), u"WEB"_s);
    preferences.setText(u"lastProject"_s, u"API"_s);
    EXPECT_EQ(store->defaultProjectKey(), u"API"_s);
    store->newIssue(u"WEB"_s);
    EXPECT_EQ(store->defaultProjectKey(), u"WEB"_s);
}

TEST_F(AppStoreCommentsTest, whoCanBeMentionedComesFromTheIssueItsProjectAndTheUsersMet)
{
    answerEverything();
    Issue issue = sampleIssue(u"WEB-1"_s);
    issue.assignee = sampleUser(u"u3"_s, u"Zoé"_s);
    service->issuesCalls.answerWith({issue});
    service->assignableUsersCalls.answerWith({sampleUser(u"u4"_s, u"Ana"_s)});
    const TaskResult<void> started(store->startDemo());

    const auto ids = [](const QList<JiraUser> &users) {
        QStringList result;
        for (const JiraUser &user : users)
            result += user.id;
        return result;
    };
    EXPECT_EQ(ids(store->mentionCandidates(u"WEB-1"_s)), (QStringList{u"u3"_s, u"u4"_s, u"u1"_s}));
    EXPECT_EQ(ids(store->mentionCandidates(std::nullopt, u"ABC"_s)),
              (QStringList{u"u3"_s, u"u4"_s, u"u1"_s}))
        << "of the list, then known from WEB";
}

} // namespace
