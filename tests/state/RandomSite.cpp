#include "state/RandomSite.h"

#include "model/JiraError.h"
#include "state/edits/OpenEdits.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const JiraError Refused(JiraError::Http{500, u"Panne."_s});

template <typename Calls>
void addPending(Calls &calls, int operation, auto add)
{
    for (int i = 0; i < calls.count(); ++i) {
        if (calls[i].isPending())
            add(operation, i);
    }
}

} // namespace

RandomSite::RandomSite(const QString &name, const ManualClock &clock, std::mt19937 &random)
    : m_name(name),
      m_clock(clock),
      m_random(random),
      m_statuses{IssueStatus(u"1"_s, u"À faire"_s, u"new"_s),
                 IssueStatus(u"2"_s, u"En cours"_s, u"indeterminate"_s),
                 IssueStatus(u"3"_s, u"Terminé"_s, u"done"_s)}
{
    State state;
    for (int i = 1; i <= 6; ++i) {
        Issue issue;
        issue.key = (i % 2 ? u"WEB-%1"_s : u"API-%1"_s).arg(i);
        issue.id = name + issue.key;
        issue.projectKey = issue.key.section(u'-', 0, 0);
        issue.summary = name + u" %1"_s.arg(i);
        issue.status = m_statuses[i % 3];
        issue.updated = QDateTime({2026, 10, i}, {9, 0}, QTimeZone::utc());
        state.insert(issue.key, issue);
        m_keys += issue.key;
    }
    m_history.push_back({m_clock.now().addDays(-1), state});
    JiraUser me;
    me.id = name + u"moi"_s;
    m_service->currentUserCalls.answerWith(me);
    m_service->projectsCalls.answerWith({});
    m_service->projectCalls.answerWith({});
    m_service->statusesCalls.answerWith(m_statuses);
    m_service->prioritiesCalls.answerWith({});
    m_service->assignableUsersCalls.answerWith({});
    m_service->commentsCalls.answerWith({});
}

const Issue &RandomSite::issue(const QString &key) const
{
    return *m_history.back().state.constFind(key);
}

void RandomSite::write(const QString &key, const std::function<void(Issue &)> &change)
{
    State state = m_history.back().state;
    Issue &issue = state[key];
    change(issue);
    issue.updated = std::max(issue.updated.addMSecs(1), m_clock.now());
    m_history.push_back({m_clock.now(), state});
}

void RandomSite::changeByOthers()
{
    const QString title = m_name + u" d'une autre personne %1"_s.arg(random(1000));
    write(keyOfOthers(), [&](Issue &issue) { issue.summary = title; });
}

bool RandomSite::hasOpenWrite(const QString &key, Field field) const
{
    constexpr std::array fields{Summary, Description, Priority, Labels, DueDate};
    constexpr int turns = 8;
    int moving = 0;
    for (const Waiting &waiting : pending()) {
        const int number = waiting.number;
        switch (waiting.operation) {
        case 2:
            ++moving;
            if (field == Status && m_service->transitionsCalls[number].argument() == key)
                return true;
            break;
        case 3:
            ++moving;
            if (field == Status && m_service->performCalls[number].argument<1>() == key)
                return true;
            break;
        case 4: {
            auto &call = m_service->updateCalls[number];
            if (call.argument<0>() == key && fields[call.argument<1>().value.index()] == field)
                return true;
            break;
        }
        case 5:
            if (field == Assignee && m_service->assignCalls[number].argument<0>() == key)
                return true;
            break;
        default:
            break;
        }
    }
    return field == Status && moving >= turns;
}

void RandomSite::noteRequests()
{
    while (m_listsAsked.size() < m_service->issuesCalls.count())
        m_listsAsked += m_clock.now();
    while (m_issuesAsked.size() < m_service->issueCalls.count())
        m_issuesAsked += m_clock.now();
}

const RandomSite::State &RandomSite::stateSince(const QDateTime &time)
{
    std::size_t first = m_history.size() - 1;
    while (!m_isReliable && first > 0 && m_history[first].at > time)
        --first;
    const auto count = m_history.size() - first;
    return m_history[first + std::size_t(random(int(count)))].state;
}

QList<RandomSite::Waiting> RandomSite::pending() const
{
    QList<Waiting> result;
    const auto add = [&](int operation, int number) { result += Waiting{operation, number}; };
    addPending(m_service->issuesCalls, 0, add);
    addPending(m_service->issueCalls, 1, add);
    addPending(m_service->transitionsCalls, 2, add);
    addPending(m_service->performCalls, 3, add);
    addPending(m_service->updateCalls, 4, add);
    addPending(m_service->assignCalls, 5, add);
    return result;
}

RandomSite::Answer RandomSite::answerAny()
{
    noteRequests();
    const auto waiting = pending();
    const Waiting chosen = waiting[random(int(waiting.size()))];
    using Method = Answer (RandomSite::*)(int);
    constexpr std::array<Method, 6> methods{
        &RandomSite::answerList,    &RandomSite::answerIssue,  &RandomSite::answerTransitions,
        &RandomSite::answerPerform, &RandomSite::answerUpdate, &RandomSite::answerAssign};
    return (this->*methods[std::size_t(chosen.operation)])(chosen.number);
}

template <typename Call>
bool RandomSite::refuses(Call &call, Answer &answer)
{
    const int dice = m_isReliable ? 0 : random(100);
    if (dice < 65)
        return false;
    answer.isRefused = dice < 85;
    answer.isCancelled = !answer.isRefused;
    if (answer.isRefused)
        call.fail(Refused);
    else
        call.cancel();
    return true;
}

RandomSite::Answer RandomSite::answerList(int number)
{
    auto &call = m_service->issuesCalls[number];
    Answer answer;
    if (refuses(call, answer))
        return answer;
    const QDateTime oldest = m_listsAsked[number].addDuration(-OpenEdits::SearchLag + 1s);
    const State &state = stateSince(oldest);
    const IssueScope scope = call.argument();
    IssueList list;
    for (const QString &key : std::as_const(m_keys)) {
        Issue issue = state.value(key);
        issue.description.reset();
        const auto *project = scope.asProject();
        if (!project || project->key == issue.projectKey)
            list += issue;
    }
    // Pages of a list sometimes overlap, so that an issue occurs twice.
    if (random(4) == 0 && !list.isEmpty())
        list += list.first();
    call.finish(list);
    return answer;
}

RandomSite::Answer RandomSite::answerIssue(int number)
{
    auto &call = m_service->issueCalls[number];
    Answer answer;
    if (refuses(call, answer))
        return answer;
    Issue issue = stateSince(m_issuesAsked[number]).value(call.argument());
    issue.hasDetails = true;
    call.finish(issue);
    return answer;
}

RandomSite::Answer RandomSite::answerTransitions(int number)
{
    auto &call = m_service->transitionsCalls[number];
    const QString key = call.argument();
    Answer answer{key, Status};
    if (refuses(call, answer))
        return answer;
    QList<WorkflowTransition> offered;
    for (const IssueStatus &status : std::as_const(m_statuses)) {
        if (m_isReliable || random(6))
            offered += {u"t"_s + status.id(), status.name(), status};
    }
    const int performs = m_service->performCalls.count();
    call.finish(offered);
    // If the workflow does not offer the status, the edit ends as after a refusal.
    answer.isRefused = m_service->performCalls.count() == performs;
    return answer;
}

RandomSite::Answer RandomSite::answerPerform(int number)
{
    auto &call = m_service->performCalls[number];
    const QString key = call.argument<1>();
    Answer answer{key, Status};
    if (refuses(call, answer))
        return answer;
    write(key, [&](Issue &issue) { issue.status = call.template argument<0>().to; });
    call.finish();
    return answer;
}

RandomSite::Answer RandomSite::answerUpdate(int number)
{
    auto &call = m_service->updateCalls[number];
    const QString key = call.argument<0>();
    const IssueFieldUpdate update = call.argument<1>();
    constexpr std::array fields{Summary, Description, Priority, Labels, DueDate};
    Answer answer{key, fields[update.value.index()]};
    if (refuses(call, answer))
        return answer;
    write(key, [&](Issue &issue) {
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
    });
    call.finish();
    return answer;
}

RandomSite::Answer RandomSite::answerAssign(int number)
{
    auto &call = m_service->assignCalls[number];
    const QString key = call.argument<0>();
    Answer answer{key, Assignee};
    if (refuses(call, answer))
        return answer;
    write(key, [&](Issue &issue) { issue.assignee = call.template argument<1>(); });
    call.finish();
    return answer;
}

bool RandomSite::areEqual(const Issue &a, const Issue &b, Field field)
{
    switch (field) {
    case Status:
        return a.status == b.status;
    case Priority:
        return a.priority == b.priority;
    case Assignee:
        return a.assignee == b.assignee;
    case Labels:
        return a.labels == b.labels;
    case Summary:
        return a.summary == b.summary;
    case Description:
        return a.description == b.description;
    case DueDate:
        return a.dueDate == b.dueDate;
    case FieldCount:
        break;
    }
    return true;
}
