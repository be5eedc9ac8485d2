#pragma once

#include "support/ManualClock.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"
#include "update/FakeBundles.h"
#include "update/ScriptedTransport.h"
#include "update/Updater.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// An updater of version 1.4 (build 121) with a scripted transport. The files of preferences and updates are in a
/// temporary folder.
class UpdaterFixture : public testing::Test
{
protected:
    using Kind = UpdateState::Kind;
    using State = UpdateState;
    static inline const QString Feed =
        QStringLiteral("https://updates.example/velmora/latest.json");
    static inline const QByteArray Content = "the archive";

    /// A release that is newer than the running version.
    static ReleaseInfo newer()
    {
        ReleaseInfo release;
        release.version = QStringLiteral("1.5");
        release.build = QStringLiteral("122");
        release.url = QStringLiteral("Velmora-1.5.zip");
        release.sha256 = QString::fromLatin1(
            QCryptographicHash::hash(Content, QCryptographicHash::Sha256).toHex());
        return release;
    }
    static RunningApp runningApp()
    {
        return {.path = QStringLiteral("/home/person/Applications/Velmora.app"),
                .version = QStringLiteral("1.4"),
                .build = QStringLiteral("121"),
                .feed = Feed};
    }

    Updater &open() { return open(runningApp()); }
    /// Makes the updater, or makes it anew, with the same preferences.
    Updater &open(const RunningApp &app)
    {
        bundles = std::make_shared<FakeBundles>(app);
        updater.emplace(UpdaterContext{.clock = clock,
                                       .preferences = preferences,
                                       .transport = transport,
                                       .bundles = bundles,
                                       .quit = [this] { ++quits; },
                                       .temporaryFolder = folder.path()});
        return *updater;
    }

    /// From now on, the feed contains this release.
    void offer(const ReleaseInfo &release) { answerFeed(release.encoded()); }
    void answerFeed(const QByteArray &body, int status = 200)
    {
        transport.feeds.answerWith({.status = status, .body = body});
    }
    void offerArchive()
    {
        transport.archives.answerBy(
            [](const QUrl &) { return ScriptedTransport::archive(Content); });
    }

    /// Waits for the end of a check, with everything that it causes.
    State check(Updater::Asker asker = Updater::Asker::User)
    {
        const TaskResult<void> result(updater->check(asker));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return updater->state();
    }
    /// Waits for the end of a download.
    State download(const ReleaseInfo &release)
    {
        const TaskResult<void> result(updater->download(release));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return updater->state();
    }
    std::string failure() const { return updater->state().failureOrEmpty().toStdString(); }

    QTemporaryDir folder;
    ManualClock clock;
    Preferences preferences{folder.filePath(QStringLiteral("preferences.ini"))};
    ScriptedTransport transport;
    std::shared_ptr<FakeBundles> bundles;
    int quits = 0;
    std::optional<Updater> updater;
};
