#pragma once

#include "state/AppStore.h"
#include "state/palette/IssuesInMemory.h"

#include <QObject>

/// Finds open issues in memory for the desktop's search. Asks the service nothing. What was found in one session is unknown
/// in the next.
class IssueFinder : public QObject
{
    Q_OBJECT

public:
    /// The longest search, in characters of all its words. Nothing is found for longer ones.
    static constexpr qsizetype LongestSearch = 300;
    /// The most words of a search. Nothing is found for more.
    static constexpr qsizetype MostWords = 16;

    struct Found
    {
        QString key;
        QString summary;
        /// The key and the name of the status.
        QString details;

        bool operator==(const Found &) const = default;
    };

    /// The store must outlive this object.
    explicit IssueFinder(AppStore &store);

    /// The ids of the open issues that contain every word; none without a session.
    QStringList matching(const QStringList &words);
    /// The issue that was found under this id, if its session still lasts and the issue is in memory.
    std::optional<Found> found(const QString &id) const;

private:
    AppStore &m_store;
    IssuesInMemory m_memory;
    /// The number of times that a session began or ended. An id begins with it.
    quint64 m_session = 0;
};
