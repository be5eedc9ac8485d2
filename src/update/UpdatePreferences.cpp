#include "update/UpdatePreferences.h"

using namespace Qt::StringLiterals;

namespace {

const auto AutomaticKey = u"updates.automatic"_s;
const auto DownloadKey = u"updates.download"_s;
const auto FeedKey = u"updates.feed"_s;
const auto LastCheckKey = u"updates.lastCheck"_s;
const auto LastLaunchedBuildKey = u"updates.lastLaunchedBuild"_s;
const auto PendingNotesKey = u"updates.pendingNotes"_s;

} // namespace

bool UpdatePreferences::automaticChecks() const
{
    return m_preferences.flag(AutomaticKey).value_or(true);
}

void UpdatePreferences::setAutomaticChecks(bool on)
{
    m_preferences.setFlag(AutomaticKey, on);
}

bool UpdatePreferences::automaticDownloads() const
{
    return m_preferences.flag(DownloadKey).value_or(true);
}

void UpdatePreferences::setAutomaticDownloads(bool on)
{
    m_preferences.setFlag(DownloadKey, on);
}

QString UpdatePreferences::customFeed() const
{
    return m_preferences.text(FeedKey).value_or(QString());
}

void UpdatePreferences::setCustomFeed(const QString &address)
{
    m_preferences.setText(FeedKey, address);
}

std::optional<QDateTime> UpdatePreferences::lastCheck() const
{
    const auto stored = m_preferences.text(LastCheckKey);
    const QDateTime time = QDateTime::fromString(stored.value_or(QString()), Qt::ISODateWithMs);
    return time.isValid() ? std::optional(time.toUTC()) : std::nullopt;
}

void UpdatePreferences::setLastCheck(const QDateTime &time)
{
    m_preferences.setText(LastCheckKey, time.toUTC().toString(Qt::ISODateWithMs));
}

std::optional<QString> UpdatePreferences::lastLaunchedBuild() const
{
    return m_preferences.text(LastLaunchedBuildKey);
}

void UpdatePreferences::setLastLaunchedBuild(const QString &build)
{
    m_preferences.setText(LastLaunchedBuildKey, build);
}

std::optional<ReleaseInfo> UpdatePreferences::pendingNotes() const
{
    const auto stored = m_preferences.bytes(PendingNotesKey);
    if (!stored || stored->isEmpty())
        return std::nullopt;
    auto release = ReleaseInfo::decoded(*stored);
    return release ? std::optional(*std::move(release)) : std::nullopt;
}

void UpdatePreferences::setPendingNotes(const ReleaseInfo &release)
{
    m_preferences.setBytes(PendingNotesKey, release.encoded());
}

void UpdatePreferences::clearPendingNotes()
{
    // The store cannot remove a key; an empty value counts as absent.
    m_preferences.setBytes(PendingNotesKey, QByteArray(""));
}
