#pragma once

#include "richtext/ADFNodes.h"
#include "state/AppStoreFixture.h"

/// A store with an issue whose comments the test gives.
class ActivityFixture : public AppStoreFixture
{
protected:
    /// A comment of one paragraph, written an hour ago by Elsa Karoubi.
    Comment reply(const QString &id, const QString &text = QStringLiteral("Bonjour")) const
    {
        Comment comment;
        comment.id = id;
        comment.author = sampleUser(QStringLiteral("u-elsa"), QStringLiteral("Elsa Karoubi"));
        comment.body = ADF::document({ADF::container(u"paragraph", {ADF::text(text)})});
        comment.created = clock.now().addSecs(-3600);
        return comment;
    }
    Comment note(const QString &id) const
    {
        Comment comment = reply(id);
        comment.isInternal = true;
        return comment;
    }
    /// `count` comments, of which every third is a note.
    QList<Comment> many(int count) const
    {
        QList<Comment> comments;
        for (int i = 0; i < count; ++i) {
            const QString id = QStringLiteral("c%1").arg(i);
            comments.append(i % 3 == 2 ? note(id) : reply(id));
        }
        return comments;
    }
    /// The site answers with these comments when the issue is next fetched, which is now. The kind of the project is
    /// that of the first call in a session.
    void serve(const QList<Comment> &comments, const QString &key = QStringLiteral("SUP-41"),
               bool isServiceDesk = false)
    {
        answerEverything();
        service->projectCalls.answerBy([isServiceDesk](const QString &projectKey) {
            Project project = sampleProject(projectKey);
            project.isServiceDesk = isServiceDesk;
            return project;
        });
        service->issueCalls.answerBy([this](const QString &issueKey) { return issue(issueKey); });
        service->commentsCalls.answerWith(comments);
        const TaskResult<void> loaded(store->loadDetails(key));
        EXPECT_TRUE(loaded.isDone());
        holdEverything();
    }
    /// Created four days ago by Basile Rochat, unless the test has set another reporter.
    Issue issue(const QString &key) const
    {
        Issue issue = sampleIssue(key);
        issue.reporter = reporter;
        issue.created = clock.now().addDays(-4);
        return issue;
    }

    std::optional<JiraUser> reporter =
        sampleUser(QStringLiteral("u-basile"), QStringLiteral("Basile Rochat"));
};
