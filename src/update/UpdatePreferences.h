#pragma once

#include "platform/Preferences.h"
#include "update/ReleaseInfo.h"

#include <QDateTime>

#include <optional>

/// The preferences of the updater, with their names and defaults. A value of the wrong type counts as absent.
class UpdatePreferences
{
public:
    explicit UpdatePreferences(Preferences &preferences) : m_preferences(preferences) {}

    /// True if nothing is stored.
    bool automaticChecks() const;
    void setAutomaticChecks(bool on);
    /// True if nothing is stored.
    bool automaticDownloads() const;
    void setAutomaticDownloads(bool on);
    /// Empty if nothing is stored.
    QString customFeed() const;
    void setCustomFeed(const QString &address);
    /// In UTC.
    std::optional<QDateTime> lastCheck() const;
    void setLastCheck(const QDateTime &time);
    /// The build that was running at the last launch.
    std::optional<QString> lastLaunchedBuild() const;
    void setLastLaunchedBuild(const QString &build);
    /// The release whose installation was started last, until it was announced. Absent if it cannot be decoded.
    std::optional<ReleaseInfo> pendingNotes() const;
    void setPendingNotes(const ReleaseInfo &release);
    void clearPendingNotes();

private:
    Preferences &m_preferences;
};
