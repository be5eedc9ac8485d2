#include "state/InterleavingRun.h"

#include "model/JiraError.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 60;
const JiraError Refused(JiraError::Http{500, u"Panne."_s});
const QList<IssueScope> Scopes{IssueScope::myIssues(), IssueScope::recent(),
                               IssueScope::project(u"WEB"_s, ProjectView::All)};

JiraUser user(const QString &id)
{
    JiraUser result;
    result.id = id;
    result.name = u"Personne "_s + id;
    return result;
}

template <typename Calls>
QList<int> pending(Calls &calls)
{
    QList<int> result;
    for (int i = 0; i < calls.count(); ++i) {
        if (calls[i].isPending())
            result += i;
    }
    return result;
}

} // namespace

InterleavingRun::Counts &InterleavingRun::Counts::operator+=(const Counts &other)
{
    steps += other.steps;
    edits += other.edits;
    failures += other.failures;
    cancellations += other.cancellations;
    signOuts += other.signOuts;
    agreements += other.agreements;
    return *this;
}

InterleavingRun::InterleavingRun(AppStore &store, ScriptedService &service, unsigned seed)
    : m_store(store),
      m_service(service),
      m_random(seed),
      m_statuses{IssueStatus(u"1"_s, u"À faire"_s, u"new"_s),
                 IssueStatus(u"2"_s, u"En cours"_s, u"indeterminate"_s),
                 IssueStatus(u"3"_s, u"Terminé"_s, u"done"_s)}
{
    for (int i = 1; i <= 6; ++i) {
        Issue issue;
        issue.key = (i % 2 ? u"WEB-%1"_s : u"API-%1"_s).arg(i);
        issue.projectKey = issue.key.section(u'-', 0, 0);
        issue.summary = u"Titre %1"_s.arg(i);
        issue.status = m_statuses[i % 3];
        issue.updated = QDateTime({2026, 10, i}, {9, 0}, QTimeZone::utc());
        m_site.insert(issue.key, issue);
        m_keys += issue.key;
    }
    m_past += m_site;
    service.currentUserCalls.answerWith(user(u"moi"_s));
    service.projectsCalls.answerWith({});
    service.projectCalls.answerWith({});
    service.statusesCalls.answerWith(m_statuses);
    service.prioritiesCalls.answerWith({});
    service.assignableUsersCalls.answerWith({});
    service.commentsCalls.answerWith({});
    m_store.openDemo();
}

void InterleavingRun::toTheEnd()
{
    for (int step = 0; step < Steps; ++step)
        run([this] { return act(); });
    for (auto left = answers(); !left.isEmpty(); left = answers())
        run(oneOf(left));
    refreshEverything();
    checkAgainstSite();
}

QStringList InterleavingRun::someKeys()
{
    QStringList keys;
    for (int i = random(3); i >= 0; --i)
        keys += oneOf(m_keys);
    keys.removeDuplicates();
    return keys;
}

InterleavingRun::Effect InterleavingRun::act()
{
    const int dice = random(100);
    const auto waiting = answers();
    if (dice < 45 && !waiting.isEmpty())
        return oneOf(waiting)();
    if (dice < 80)
        return edit();
    return dice < 97 ? load() : changeSession();
}

InterleavingRun::Effect InterleavingRun::edit()
{
    ++m_counts.edits;
    const QStringList keys = someKeys();
    const QString &key = keys.front();
    const QString word = QString::number(random(1000));
    const auto changes = [](const QStringList &some, const Fields &fields) {
        Effect effect;
        for (const QString &one : some)
            effect.edits.insert(one, fields);
        return effect;
    };
    switch (random(8)) {
    case 0:
        m_store.setPriority(IssuePriority(word, u"High"_s), keys);
        return changes(keys, {Priority});
    case 1:
        m_store.assign(keys, random(3) ? std::optional(user(word)) : std::nullopt);
        return changes(keys, {Assignee});
    case 2:
        m_store.toggleLabel(u"l%1"_s.arg(random(2)), keys);
        return changes(keys, {Labels});
    case 3:
        m_store.rename(key, u"Titre "_s + word);
        return changes({key}, {Summary});
    case 4:
        m_store.setDescription(random(4) ? u"Texte "_s + word : u" "_s, key);
        return changes({key}, {Description});
    case 5:
        m_store.setDueDate(QDate(2026, 11, 1 + random(28)), key);
        return changes({key}, {DueDate});
    case 6:
        spawn([](AppStore *store, QString issue) -> QCoro::Task<> {
            co_await store->addComment(u"Bonjour"_s, issue, CommentAudience::Everyone, {});
        }(&m_store, key));
        return {};
    default:
        m_store.setStatus(oneOf(m_statuses), keys);
        return changes(keys, {Status, Updated});
    }
}

InterleavingRun::Effect InterleavingRun::load()
{
    Effect effect;
    switch (random(4)) {
    case 0:
        m_store.select(oneOf(Scopes));
        // The list shows what is cached.
        effect.arrivals = {u"issues"_s};
        for (const SharedIssue &issue : m_store.issues())
            effect.arrived.insert(issue->key, *issue);
        return effect;
    case 1:
        m_store.refresh();
        return effect;
    case 2:
        spawn(m_store.refreshMyIssues());
        return effect;
    default:
        spawn(m_store.loadDetails(oneOf(m_keys)));
        return effect;
    }
}

InterleavingRun::Effect InterleavingRun::changeSession()
{
    if (m_store.phase() == AppStore::Phase::Ready && random(2)) {
        ++m_counts.signOuts;
        m_store.signOut();
    } else {
        m_store.openDemo();
    }
    m_mayDiffer.clear();
    Effect effect;
    effect.isSessionChange = true;
    return effect;
}

QList<InterleavingRun::Action> InterleavingRun::answers()
{
    QList<Action> result;
    const auto add = [&](auto &calls, Effect (InterleavingRun::*answer)(int)) {
        for (const int call : pending(calls))
            result += [this, answer, call] { return (this->*answer)(call); };
    };
    add(m_service.issuesCalls, &InterleavingRun::answerList);
    add(m_service.issueCalls, &InterleavingRun::answerIssue);
    add(m_service.transitionsCalls, &InterleavingRun::answerTransitions);
    add(m_service.performCalls, &InterleavingRun::answerPerform);
    add(m_service.updateCalls, &InterleavingRun::answerUpdate);
    add(m_service.assignCalls, &InterleavingRun::answerAssign);
    add(m_service.addCommentCalls, &InterleavingRun::answerComment);
    return result;
}

template <typename Call>
bool InterleavingRun::refuses(Call &call, Effect &effect, int toasts)
{
    const int dice = m_isOrderly ? 0 : random(100);
    if (dice < 60)
        return false;
    if (dice < 80) {
        ++m_counts.failures;
        effect.toasts = toasts;
        call.fail(Refused);
    } else {
        ++m_counts.cancellations;
        call.cancel();
    }
    return true;
}

InterleavingRun::Effect InterleavingRun::answerList(int number)
{
    auto &call = m_service.issuesCalls[number];
    Effect effect;
    if (refuses(call, effect, 0))
        return effect;
    const Site &seen = m_isOrderly ? m_site : oneOf(m_past);
    const IssueList list = listOf(call.argument(), seen);
    for (const SharedIssue &issue : list)
        effect.arrived.insert(issue->key, *issue);
    effect.arrivals = {u"issues"_s, u"mine"_s, u"details"_s,
                       u"cache %1"_s.arg(Scopes.indexOf(call.argument()))};
    call.finish(list);
    return effect;
}

InterleavingRun::Effect InterleavingRun::answerIssue(int number)
{
    auto &call = m_service.issueCalls[number];
    Effect effect;
    effect.newTransitions = Purpose::Opening;
    if (refuses(call, effect, 0))
        return effect;
    Issue issue = (m_isOrderly ? m_site : oneOf(m_past)).value(call.argument());
    issue.hasDetails = true;
    effect.arrivals = {u"issues"_s, u"details"_s};
    effect.arrived.insert(issue.key, issue);
    call.finish(issue);
    return effect;
}

InterleavingRun::Effect InterleavingRun::answerTransitions(int number)
{
    auto &call = m_service.transitionsCalls[number];
    const bool isMove = m_purposes[number] == Purpose::Move;
    Effect effect;
    if (isMove)
        effect.edits.insert(call.argument(), {Status, Updated});
    if (refuses(call, effect, isMove ? 1 : 0))
        return effect;
    QList<WorkflowTransition> offered;
    for (const IssueStatus &status : std::as_const(m_statuses)) {
        // Sometimes the way to a status is not offered, and the move ends like a refused request.
        if (random(6))
            offered += {u"t"_s + status.id(), status.name(), status};
    }
    const int performs = m_service.performCalls.count();
    call.finish(offered);
    effect.toasts = isMove && m_service.performCalls.count() == performs ? 1 : 0;
    m_counts.failures += effect.toasts;
    return effect;
}

InterleavingRun::Effect InterleavingRun::answerPerform(int number)
{
    auto &call = m_service.performCalls[number];
    const QString key = call.argument<1>();
    Effect effect;
    effect.edits.insert(key, {Status, Updated});
    if (refuses(call, effect, 1))
        return effect;
    m_site[key].status = call.argument<0>().to;
    m_past += m_site;
    effect.newTransitions = Purpose::AfterMove;
    call.finish();
    return effect;
}

InterleavingRun::Effect InterleavingRun::answerUpdate(int number)
{
    auto &call = m_service.updateCalls[number];
    const QString key = call.argument<0>();
    const IssueFieldUpdate update = call.argument<1>();
    Effect effect;
    effect.edits.insert(key, fieldsOf(update));
    if (refuses(call, effect, 1))
        return effect;
    effect.edits.clear();
    Issue &issue = m_site[key];
    if (const auto *summary = std::get_if<IssueFieldUpdate::Summary>(&update.value))
        issue.summary = summary->text;
    else if (const auto *text = std::get_if<IssueFieldUpdate::Description>(&update.value))
        issue.description = text->document;
    else if (const auto *priority = std::get_if<IssueFieldUpdate::Priority>(&update.value))
        issue.priority = priority->priority;
    else if (const auto *labels = std::get_if<IssueFieldUpdate::Labels>(&update.value))
        issue.labels = labels->labels;
    else if (const auto *due = std::get_if<IssueFieldUpdate::DueDate>(&update.value))
        issue.dueDate = due->day;
    m_past += m_site;
    call.finish();
    return effect;
}

InterleavingRun::Effect InterleavingRun::answerAssign(int number)
{
    auto &call = m_service.assignCalls[number];
    const QString key = call.argument<0>();
    Effect effect;
    effect.edits.insert(key, {Assignee});
    if (refuses(call, effect, 1))
        return effect;
    effect.edits.clear();
    m_site[key].assignee = call.argument<1>();
    m_past += m_site;
    call.finish();
    return effect;
}

InterleavingRun::Effect InterleavingRun::answerComment(int number)
{
    auto &call = m_service.addCommentCalls[number];
    Effect effect;
    if (!refuses(call, effect, 1))
        call.finish(Comment());
    return effect;
}
