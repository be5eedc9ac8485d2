#pragma once

#include "platform/Preferences.h"
#include "state/AppStore.h"
#include "state/ScriptedSessions.h"
#include "support/FakeDesktop.h"
#include "support/ManualClock.h"
#include "support/ScriptedService.h"
#include "support/TaskResult.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A store with a scripted service, a manual clock and its own preference file.
class AppStoreFixture : public testing::Test
{
protected:
    AppStoreFixture();
    /// Destroys the store, then cancels the calls that the test left pending.
    ~AppStoreFixture() override;

    /// Creates a new store, as the next start of the program does. The sessions that it opens use `service`.
    void makeStore();
    /// Brings the store to phase `ready`, with empty lists and no pending calls. From then on, every operation of the
    /// service stays pending until the test answers it.
    void startSession();
    /// Makes the service respond to every request immediately, with empty results unless the test has set others.
    void answerEverything();
    void holdEverything();
    /// Reloads with this list and completes the reload.
    void reloadWith(const IssueList &issues);

    static Issue sampleIssue(const QString &key,
                             const QString &statusName = QStringLiteral("À faire"));
    static JiraUser sampleUser(const QString &id, const QString &name);
    static Project sampleProject(const QString &key);
    static QStringList keys(const IssueList &issues);

    /// A folder in memory if one is available, because each session writes preferences and disks are slow.
    static QString folderTemplate();

    QTemporaryDir folder{folderTemplate()};
    QString preferencesPath = folder.filePath(QStringLiteral("Velmora.ini"));
    Preferences preferences{preferencesPath};
    ManualClock clock;
    FakeDesktop desktop;
    /// The sessions on sites (not the demo), which use `service` too.
    ScriptedSessions sessions;
    std::shared_ptr<ScriptedService> service = std::make_shared<ScriptedService>();
    int demosMade = 0;
    std::unique_ptr<AppStore> store;
};
