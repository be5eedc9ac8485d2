#include "jira/matrix/Operation.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = Operation::Kind;
using Effect = Operation::Effect;

/// Wraps an operation whose result is not needed.
template <typename T>
QCoro::Task<> ended(QCoro::Task<T> task)
{
    co_await std::move(task);
}

/// An operation that is complete immediately.
QCoro::Task<> over()
{
    co_return;
}

QString key()
{
    return u"PORT-1"_s;
}

QUrl contentOn(const JiraClient &client)
{
    QUrl url = client.credentials().site;
    url.setPath(u"/rest/api/3/attachment/content/7"_s);
    return url;
}

Attachment attachmentOn(const JiraClient &client)
{
    return {.id = u"7"_s,
            .filename = u"plan.txt"_s,
            .mimeType = u"text/plain"_s,
            // That of the response with which the faults begin.
            .size = 46,
            .created = {},
            .author = {},
            .contentURL = contentOn(client),
            .thumbnailURL = {}};
}

QList<Operation> reads()
{
    return {
        {"currentUser", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) { return ended(client.currentUser()); }},
        {"projects", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) { return ended(client.projects()); }},
        {"project", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) { return ended(client.project(u"PORT"_s)); }},
        {"statuses", Kind::ReadsList, Effect::None,
         [](auto &client, auto &) { return ended(client.statuses(u"PORT"_s)); }},
        {"priorities", Kind::ReadsList, Effect::None,
         [](auto &client, auto &) { return ended(client.priorities()); }},
        {"assignableUsers", Kind::ReadsList, Effect::None,
         [](auto &client, auto &) { return ended(client.assignableUsers(u"PORT"_s)); }},
        {"issues", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) { return ended(client.issues(IssueScope::myIssues())); }},
        {"issuesOfASprint", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) {
             return ended(client.issues(IssueScope::project(u"PORT"_s, ProjectView::Active)));
         }},
        {"issuesOfARecap", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) {
             return ended(client.issues(IssueScope::activity({ActivityRange::Week, 0, true})));
         }},
        {"search", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) { return ended(client.search(u"portail"_s)); }},
        {"searchByKey", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) { return ended(client.search(key())); }},
        {"issue", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) { return ended(client.issue(key())); }},
        {"comments", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) { return ended(client.comments(key())); }},
        {"transitions", Kind::ReadsAnswer, Effect::None,
         [](auto &client, auto &) { return ended(client.transitions(key())); }},
        {"searchUsers", Kind::ReadsList, Effect::None,
         [](auto &client, auto &) { return ended(client.searchUsers(u"léa"_s)); }},
        {"download", Kind::Download, Effect::None,
         [](auto &client, auto &) { return ended(client.download(attachmentOn(client))); }},
    };
}

QList<Operation> writes()
{
    return {
        {"perform", Kind::IgnoresAnswer, Effect::ChangesSite,
         [](auto &client, auto &) {
             return client.perform({.id = u"31"_s, .name = {}, .to = {}}, key());
         }},
        {"update", Kind::IgnoresAnswer, Effect::ChangesSite,
         [](auto &client, auto &) {
             return client.update(key(), {IssueFieldUpdate::Summary{u"Neuf"_s}});
         }},
        {"assign", Kind::IgnoresAnswer, Effect::ChangesSite,
         [](auto &client, auto &) { return client.assign(key(), std::nullopt); }},
        {"addComment", Kind::ReadsAnswer, Effect::ChangesSite,
         [](auto &client, auto &) { return ended(client.addComment(key(), ADFNode(), false)); }},
        {"create", Kind::ReadsAnswer, Effect::ChangesSite,
         [](auto &client, auto &) {
             return ended(client.create({.projectKey = u"PORT"_s,
                                         .issueTypeID = {},
                                         .summary = u"Neuf"_s,
                                         .description = {},
                                         .priorityID = {},
                                         .assigneeID = {},
                                         .labels = {}}));
         }},
        {"uploadAttachments", Kind::Upload, Effect::ChangesSite,
         [](auto &client, auto &file) { return ended(client.uploadAttachments(key(), {file})); }},
        {"deleteAttachment", Kind::IgnoresAnswer, Effect::ChangesSite,
         [](auto &client, auto &) { return client.deleteAttachment(u"7"_s); }},
    };
}

/// Operations whose result does not depend on the network.
QList<Operation> locals()
{
    return {
        {"siteName", Kind::Local, Effect::None,
         [](auto &client, auto &) {
             return client.siteName() == client.credentials().site.host()
                        ? over()
                        : throw Failure(u"another name"_s);
         }},
        {"browseURL", Kind::Local, Effect::None,
         [](auto &client, auto &) {
             const auto url = client.browseURL(key());
             return url && url->path() == "/browse/PORT-1"_L1 ? over()
                                                              : throw Failure(u"another address"_s);
         }},
    };
}

} // namespace

const QList<Operation> &allOperations()
{
    static const QList<Operation> all = reads() + writes() + locals();
    return all;
}
