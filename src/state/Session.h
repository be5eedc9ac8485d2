#pragma once

#include "async/Newest.h"
#include "async/Turns.h"
#include "model/IssueScope.h"
#include "model/IssueService.h"
#include "state/edits/OpenEdits.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>

/// One account at work on one back end, from its activation to the sign-out or to the next session. The store owns the
/// present one. Operations of the store await everything through `whileAlive(session, …)`: requests that are pending
/// when the session is destroyed end there and write nothing. UI thread only.
class Session : public QObject
{
    Q_OBJECT

public:
    enum class Kind { Site, Demo };
    /// What the start of a session fetches once; a refresh fetches again what has failed.
    struct Basics
    {
        /// Whether they are being fetched now.
        bool areUnderWay = false;
        bool hasAccount = false;
        bool hasProjects = false;
        bool hasPriorities = false;

        bool areComplete() const { return hasAccount && hasProjects && hasPriorities; }
    };

    Session(std::shared_ptr<IssueService> service, Kind kind);
    ~Session() override;

    const std::shared_ptr<IssueService> &service() const { return m_service; }
    bool isDemo() const { return m_kind == Kind::Demo; }

    Basics basics;
    /// Whether the user's own issues have been fetched.
    bool hasMyIssues = false;
    /// When the list of each scope was last fetched.
    QHash<IssueScope, QDateTime> fetchedAt;
    /// The projects whose statuses, users and types have been asked for.
    QSet<QString> loadedMeta;
    /// If reloads of the list overlap, only the newest one writes its result.
    Newest reloads;
    /// How many transitions run at once, so that a change of many issues does not flood the site.
    Turns transitionTurns{8};
    OpenEdits edits;

private:
    std::shared_ptr<IssueService> m_service;
    Kind m_kind;
};
