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

/// A store between a scripted back end, a clock that stands still and a preference file of its own.
class AppStoreFixture : public testing::Test
{
protected:
    AppStoreFixture();
    /// Ends what a test left pending, the store being gone.
    ~AppStoreFixture() override;

    /// A new store, as the next start of the program makes it. Sessions it opens are on `service`.
    void makeStore();
    /// A store in phase `ready` with empty lists, nothing pending, and every operation of the service on hold.
    void startSession();
    /// Makes the service answer everything at once, with empty results where nothing else was set.
    void answerEverything();
    void holdEverything();
    /// Reloads with this list, to the end.
    void reloadWith(const IssueList &issues);

    static Issue sampleIssue(const QString &key,
                             const QString &statusName = QStringLiteral("À faire"));
    static JiraUser sampleUser(const QString &id, const QString &name);
    static Project sampleProject(const QString &key);
    static QStringList keys(const IssueList &issues);

    /// In memory where there is such a folder: each session writes preferences, and disks are slow.
    static QString folderTemplate();

    QTemporaryDir folder{folderTemplate()};
    QString preferencesPath = folder.filePath(QStringLiteral("Velmora.ini"));
    Preferences preferences{preferencesPath};
    ManualClock clock;
    FakeDesktop desktop;
    /// Real sessions, which are on `service` too.
    ScriptedSessions sessions;
    std::shared_ptr<ScriptedService> service = std::make_shared<ScriptedService>();
    int demosMade = 0;
    std::unique_ptr<AppStore> store;
};
