#pragma once

#include "shell/settings/SettingsFixture.h"

/// A program of version 1.3.2 (build 132) with a built-in feed, and release 1.4.0 (build 140).
class UpdatesFixture : public SettingsFixture
{
protected:
    using Kind = UpdateState::Kind;
    static inline const QString Feed =
        QStringLiteral("https://updates.example/velmora/latest.json");

    UpdatesFixture() { runningApp.feed = Feed; }

    Updater &updater() { return app->updater(); }
    static ReleaseInfo release(const QString &notes = {});
    /// From now on, the feed contains this release, and its archive can be fetched.
    void offer(const ReleaseInfo &release);
    /// The same, but the archive does not arrive.
    void offerWithoutArchive(const ReleaseInfo &release);
    void failFeed(int status);
    /// Waits until the updater is in this state.
    bool reaches(Kind kind);
    /// Opens the demo with a release that is available and was not downloaded.
    void openWithAvailable(const ReleaseInfo &release);
    /// Opens the demo with a release that waits for a restart.
    void openWithReady(const ReleaseInfo &release);
    /// Opens the demo as the first start after an update to this release.
    void openAfterUpdateTo(const ReleaseInfo &release);
};
