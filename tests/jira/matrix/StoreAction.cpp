#include "jira/matrix/StoreAction.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = Operation::Kind;
using Outcome = StoreAction::Outcome;

/// An edit that has no task to await.
QCoro::Task<> over()
{
    co_return;
}

template <typename T>
QCoro::Task<> ended(QCoro::Task<T> task)
{
    co_await std::move(task);
}

/// A status that a transition of the issue leads to and that is not its current one.
IssueStatus otherStatus(const AppStore &store, const QString &key)
{
    const QString present = (*store.issue(key))->status.id();
    const auto offered = store.transitions().value(key);
    const auto found = std::ranges::find_if(
        offered, [&](const WorkflowTransition &offer) { return offer.to.id() != present; });
    return found->to;
}

IssuePriority otherPriority(const AppStore &store, const QString &key)
{
    const auto present = (*store.issue(key))->priority;
    const auto &all = store.priorities();
    return present == all.first() ? all.last() : all.first();
}

QCoro::Task<> moved(AppStore &store, const QString &key)
{
    store.setStatus(otherStatus(store, key), {key});
    return over();
}

IssueDraft draft()
{
    return {.projectKey = u"PORT"_s,
            .issueTypeID = u"10002"_s,
            .summary = u"Neuf"_s,
            .description = {},
            .priorityID = {},
            .assigneeID = {},
            .labels = {}};
}

QList<StoreAction> edits()
{
    return {
        {"setStatusWithoutTransitions", SiteOperation::Transitions, Kind::ReadsAnswer,
         Outcome::Told, moved},
        {"setStatus", SiteOperation::Perform, Kind::IgnoresAnswer, Outcome::Told, moved},
        {"setPriority", SiteOperation::Update, Kind::IgnoresAnswer, Outcome::Told,
         [](AppStore &store, const QString &key) {
             store.setPriority(otherPriority(store, key), {key});
             return over();
         }},
        {"rename", SiteOperation::Update, Kind::IgnoresAnswer, Outcome::Told,
         [](AppStore &store, const QString &key) {
             store.rename(key, u"Autre titre"_s);
             return over();
         }},
        {"setLabels", SiteOperation::Update, Kind::IgnoresAnswer, Outcome::Told,
         [](AppStore &store, const QString &key) {
             store.setLabels({u"neuf"_s}, key);
             return over();
         }},
        {"setDescription", SiteOperation::Update, Kind::IgnoresAnswer, Outcome::Told,
         [](AppStore &store, const QString &key) {
             store.setDescription(u"Un *autre* texte"_s, key);
             return over();
         }},
        {"setDueDate", SiteOperation::Update, Kind::IgnoresAnswer, Outcome::Told,
         [](AppStore &store, const QString &key) {
             store.setDueDate(QDate(2027, 1, 31), key);
             return over();
         }},
        {"unassign", SiteOperation::Assign, Kind::IgnoresAnswer, Outcome::Told,
         [](AppStore &store, const QString &key) {
             store.assign({key}, std::nullopt);
             return over();
         }},
        {"addComment", SiteOperation::AddComment, Kind::ReadsAnswer, Outcome::Told,
         [](AppStore &store, const QString &key) {
             return ended(store.addComment(u"Vu."_s, key, CommentAudience::Everyone, {}));
         }},
        {"create", SiteOperation::Create, Kind::ReadsAnswer, Outcome::Told,
         [](AppStore &store, const QString &) { return ended(store.create(draft())); }},
    };
}

QList<StoreAction> refreshes()
{
    return {
        {"reload", SiteOperation::Search, Kind::ReadsAnswer, Outcome::Silent,
         [](AppStore &store, const QString &) { return store.reload(); }},
        {"refreshMyIssues", SiteOperation::Search, Kind::ReadsAnswer, Outcome::Silent,
         [](AppStore &store, const QString &) { return store.refreshMyIssues(); }},
        {"loadDetails", SiteOperation::ReadIssue, Kind::ReadsAnswer, Outcome::Silent,
         [](AppStore &store, const QString &key) { return store.loadDetails(key); }},
        {"loadDetailsWithoutComments", SiteOperation::Comments, Kind::ReadsAnswer, Outcome::Silent,
         [](AppStore &store, const QString &key) { return store.loadDetails(key); }},
        {"loadDetailsWithoutTransitions", SiteOperation::Transitions, Kind::ReadsAnswer,
         Outcome::Silent,
         [](AppStore &store, const QString &key) { return store.loadDetails(key); }},
    };
}

} // namespace

const QList<StoreAction> &allStoreActions()
{
    static const QList<StoreAction> all = edits() + refreshes();
    return all;
}
