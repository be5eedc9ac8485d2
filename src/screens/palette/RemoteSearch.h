#pragma once

#include "async/LatestTask.h"
#include "state/AppStore.h"

#include <QObject>

/// The server search for the text in the palette. Each new text cancels the previous search. A text of at least two
/// characters is sent after 0.26 seconds without further typing. Only the result of the newest text is shown, and late
/// results of earlier texts are discarded.
class RemoteSearch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The results of the server for the present text.
    const IssueList &found() const { return m_found; }
    /// True while a search is running. It stays true when a search is cancelled, until a later one completes or `reset`
    /// is called.
    bool isSearching() const { return m_isSearching; }

    /// Reports a new text. A text that is too short to be sent clears the results.
    void setText(AppStore &store, const QString &text);
    /// Cancels the search and clears the results.
    void clear();
    /// Like `clear`, and sets `isSearching` to false.
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
