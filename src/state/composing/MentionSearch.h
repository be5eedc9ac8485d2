#pragma once

#include "async/LatestTask.h"
#include "model/JiraUser.h"
#include "platform/Clock.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// The search on the server for the words after an "@". Each change of the words cancels the previous search. Words of at
/// least two characters without a blank are sent after 0.25 seconds without a further change; for others nothing is
/// searched. Late results of earlier words are discarded.
class MentionSearch
{
public:
    using Search = std::function<QCoro::Task<QList<JiraUser>>(QString, std::stop_token)>;

    /// `onFound` is called when the results change.
    MentionSearch(Clock &clock, Search search, std::function<void()> onFound);

    /// Reports the present words; nothing while no mention is being typed.
    void setWords(const std::optional<QString> &words);
    /// Removes the results, as when a user was picked.
    void clear();
    /// The results for the newest words that were answered. They stay while the next words are searched.
    const QList<JiraUser> &found() const { return m_found; }

private:
    void start(const QString &words);
    void setFound(const QList<JiraUser> &found);

    Clock &m_clock;
    Search m_search;
    std::function<void()> m_onFound;
    std::optional<QString> m_words;
    QList<JiraUser> m_found;
    Clock::TimerHandle m_pause;
    LatestTask<QList<JiraUser>> m_task;
};
