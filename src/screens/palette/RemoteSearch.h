#pragma once

#include "async/LatestTask.h"
#include "state/AppStore.h"

#include <QObject>

/// The search on the server for what is being typed. Each new text calls off the search before it; a text of at least two
/// characters is sent when nothing was typed for 0.26 seconds. Late answers never show: only the newest text's does.
class RemoteSearch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// What the server found for the present text.
    const IssueList &found() const { return m_found; }
    /// A search is under way. Stays true when one is called off, until a later one completes or `reset`.
    bool isSearching() const { return m_isSearching; }

    /// The text was changed. A text too short to be sent forgets what was found.
    void setText(AppStore &store, const QString &text);
    /// Calls off the search and forgets what was found.
    void clear();
    /// `clear`, and nothing is under way any more.
    void reset();

Q_SIGNALS:
    void foundChanged();
    void isSearchingChanged();

private:
    void start(AppStore &store, const QString &text);
    void cancel();
    void setFound(const IssueList &found);
    void setIsSearching(bool searching);

    IssueList m_found;
    bool m_isSearching = false;
    Clock::TimerHandle m_pause;
    LatestTask<IssueList> m_task;
};
