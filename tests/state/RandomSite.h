#pragma once

#include "support/ManualClock.h"
#include "support/ScriptedService.h"

#include <memory>
#include <random>

/// A simulated site with a scripted service that answers in random order, refuses and cancels, and whose search index
/// is updated late. It records each of its states with the time.
class RandomSite
{
public:
    /// The fields in which two copies of an issue may differ.
    enum Field { Status, Priority, Assignee, Labels, Summary, Description, DueDate, FieldCount };
    /// The outcome of a request.
    struct Answer
    {
        /// The issue and the field of a write request.
        QString key;
        std::optional<Field> written;
        /// The site refused the write with a message for the user.
        bool isRefused = false;
        bool isCancelled = false;
    };

    /// The ids of its issues begin with the name.
    RandomSite(const QString &name, const ManualClock &clock, std::mt19937 &random);

    const std::shared_ptr<ScriptedService> &service() const { return m_service; }
    const QString &name() const { return m_name; }
    const QStringList &keys() const { return m_keys; }
    const QList<IssueStatus> &statuses() const { return m_statuses; }
    const Issue &issue(const QString &key) const;
    /// Changes the last issue, as another user would.
    void changeByOthers();
    QString keyOfOthers() const { return m_keys.last(); }

    /// Whether a write of the field may be pending. A change of status may also be queued.
    bool hasOpenWrite(const QString &key, Field field) const;

    /// Records the time of the requests that arrived since the last call.
    void noteRequests();
    int waiting() const { return int(pending().size()); }
    /// Answers a random pending request.
    Answer answerAny();
    /// From now on no request is refused, and every response contains the current state.
    void becomeReliable() { m_isReliable = true; }

    static bool areEqual(const Issue &a, const Issue &b, Field field);

private:
    using State = QHash<QString, Issue>;
    struct Dated
    {
        QDateTime at;
        State state;
    };
    struct Waiting
    {
        int operation;
        int number;
    };

    int random(int count) { return int(m_random() % unsigned(count)); }
    QList<Waiting> pending() const;
    /// A random state between the given time and the present.
    const State &stateSince(const QDateTime &time);
    void write(const QString &key, const std::function<void(Issue &)> &change);
    template <typename Call>
    bool refuses(Call &call, Answer &answer);
    Answer answerList(int number);
    Answer answerIssue(int number);
    Answer answerTransitions(int number);
    Answer answerPerform(int number);
    Answer answerUpdate(int number);
    Answer answerAssign(int number);

    QString m_name;
    const ManualClock &m_clock;
    std::mt19937 &m_random;
    std::shared_ptr<ScriptedService> m_service = std::make_shared<ScriptedService>();
    QStringList m_keys;
    QList<IssueStatus> m_statuses;
    std::vector<Dated> m_history;
    /// The times of the requests, by the number of the call.
    QList<QDateTime> m_listsAsked;
    QList<QDateTime> m_issuesAsked;
    bool m_isReliable = false;
};
