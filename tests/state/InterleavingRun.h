#pragma once

#include "state/AppStoreFixture.h"

#include <array>
#include <functional>
#include <random>
#include <set>

/// One random interleaving on one store, told by its seed. Failed expectations are reported where they happen.
class InterleavingRun
{
public:
    struct Counts
    {
        int steps = 0;
        int edits = 0;
        int failures = 0;
        int cancellations = 0;
        int signOuts = 0;
        qint64 agreements = 0;

        Counts &operator+=(const Counts &other);
    };

    InterleavingRun(AppStore &store, ScriptedService &service, unsigned seed);

    /// Random steps, then all answers, then one refresh of everything.
    void toTheEnd();
    const Counts &counts() const { return m_counts; }

private:
    enum Field { Status, Updated, Priority, Assignee, Labels, Summary, Description, DueDate, Rest };
    using Fields = std::set<Field>;
    /// Each place that holds copies, by name.
    using Places = QMap<QString, QHash<QString, SharedIssue>>;
    using Site = QHash<QString, Issue>;
    enum class Purpose { Move, AfterMove, Opening };
    /// What a step may do.
    struct Effect
    {
        /// Which fields of which issues it may change by an edit or an undoing.
        QHash<QString, Fields> edits;
        /// Where the service's view may have arrived, and what it is.
        QStringList arrivals;
        QHash<QString, Issue> arrived;
        int toasts = 0;
        Purpose newTransitions = Purpose::Move;
        /// All data may be gone.
        bool isSessionChange = false;
    };
    using Action = std::function<Effect()>;

    int random(int count) { return int(m_random() % unsigned(count)); }
    template <typename T>
    const T &oneOf(const QList<T> &values)
    {
        return values[random(int(values.size()))];
    }
    QStringList someKeys();

    Effect act();
    Effect edit();
    Effect load();
    Effect changeSession();
    QList<Action> answers();
    Effect answerList(int call);
    Effect answerIssue(int call);
    Effect answerTransitions(int call);
    Effect answerPerform(int call);
    Effect answerUpdate(int call);
    Effect answerAssign(int call);
    Effect answerComment(int call);
    /// Fails or cancels, or does not.
    template <typename Call>
    bool refuses(Call &call, Effect &effect, int toasts);

    void run(const Action &action);
    void check(const Places &before, const Places &after, const Effect &effect);
    void checkCopy(const QString &place, const SharedIssue &before, const SharedIssue &after,
                   const Effect &effect);
    void checkAgreement(const Places &places);
    void refreshEverything();
    void checkAgainstSite();

    Places places() const;
    IssueList listOf(const IssueScope &scope, const Site &site) const;
    static Issue listed(Issue issue);
    static Fields differences(const Issue &a, const Issue &b);
    static Fields fieldsOf(const IssueFieldUpdate &update);

    AppStore &m_store;
    ScriptedService &m_service;
    std::mt19937 m_random;
    Site m_site;
    /// What the site was, from the beginning: answers may be late.
    QList<Site> m_past;
    QStringList m_keys;
    QList<IssueStatus> m_statuses;
    QList<Purpose> m_purposes;
    /// The fields in which copies may differ, since the service's view arrived in some of them.
    QHash<QString, Fields> m_mayDiffer;
    QSet<int> m_done;
    bool m_isOrderly = false;
    Counts m_counts;
};
