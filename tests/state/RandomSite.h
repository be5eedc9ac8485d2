#pragma once

#include "support/ManualClock.h"
#include "support/ScriptedService.h"

#include <memory>
#include <random>

/// A site behind a scripted service that answers in any order, refuses, cancels, and whose search lags behind what was
/// written. It keeps every state that it ever had, with its date.
class RandomSite
{
public:
    /// Which fields of an issue two records may differ in.
    enum Field { Status, Priority, Assignee, Labels, Summary, Description, DueDate, FieldCount };
    /// What became of a request.
    struct Answer
    {
        /// Of a write: its issue and its field.
        QString key;
        std::optional<Field> written;
        /// A write that the site refused with words for the user.
        bool isRefused = false;
        bool isCancelled = false;
    };

    /// Its issues have ids that begin with the name.
    RandomSite(const QString &name, const ManualClock &clock, std::mt19937 &random);

    const std::shared_ptr<ScriptedService> &service() const { return m_service; }
    const QString &name() const { return m_name; }
    const QStringList &keys() const { return m_keys; }
    const QList<IssueStatus> &statuses() const { return m_statuses; }
    const Issue &issue(const QString &key) const;
    /// Somebody else writes to the last of the issues.
    void changeByOthers();
    QString keyOfOthers() const { return m_keys.last(); }

    /// Whether a write of the field may be under way. A status may also wait for its turn.
    bool hasOpenWrite(const QString &key, Field field) const;

    /// Notes when the requests came that are new since the last call.
    void noteRequests();
    int waiting() const { return int(pending().size()); }
    /// Answers a request that waits, any of them.
    Answer answerAny();
    /// From now on nothing is refused, and every answer is that of this moment.
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
    /// A state between the time and the present.
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
    /// By number of the call.
    QList<QDateTime> m_listsAsked;
    QList<QDateTime> m_issuesAsked;
    bool m_isReliable = false;
};
