#pragma once

#include "platform/Clock.h"
#include "platform/Preferences.h"
#include "platform/bundles/AppBundles.h"
#include "update/UpdateAlert.h"
#include "update/UpdateState.h"
#include "update/UpdateTransport.h"

#include <QObject>
#include <QUrl>
#include <qqmlintegration.h>

#include <functional>

/// What an `Updater` needs. All references must outlive it.
struct UpdaterContext
{
    Clock &clock;
    Preferences &preferences;
    UpdateTransport &transport;
    /// Shared with the threads that unpack and verify, which may still run when the updater is destroyed.
    std::shared_ptr<const AppBundles> bundles;
    /// Asks the program to end as if the user had quit it.
    std::function<void()> quit;
    /// The parent of the working folders.
    QString temporaryFolder;
};

/// Asks the feed for newer releases, downloads and verifies them, and installs them when the user says so. There is one
/// object per process. UI thread only; unpacking and verification run on other threads.
class Updater final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the composition root")
    Q_PROPERTY(UpdateState state READ state NOTIFY stateChanged FINAL)
    Q_PROPERTY(bool hasLastCheck READ hasLastCheck NOTIFY lastCheckChanged FINAL)
    Q_PROPERTY(QDateTime lastCheckOrInvalid READ lastCheckOrInvalid NOTIFY lastCheckChanged FINAL)
    Q_PROPERTY(bool hasWhatsNew READ hasWhatsNew NOTIFY whatsNewChanged FINAL)
    Q_PROPERTY(ReleaseInfo whatsNewOrEmpty READ whatsNewOrEmpty NOTIFY whatsNewChanged FINAL)
    Q_PROPERTY(bool automaticChecks READ automaticChecks WRITE setAutomaticChecks NOTIFY
                   automaticChecksChanged FINAL)
    Q_PROPERTY(bool automaticDownloads READ automaticDownloads WRITE setAutomaticDownloads NOTIFY
                   automaticDownloadsChanged FINAL)
    Q_PROPERTY(
        QString customFeed READ customFeed WRITE setCustomFeed NOTIFY customFeedChanged FINAL)
    Q_PROPERTY(bool hasFeed READ hasFeed NOTIFY customFeedChanged FINAL)
    Q_PROPERTY(QString bundledFeedOrEmpty READ bundledFeedOrEmpty CONSTANT FINAL)
    Q_PROPERTY(QString currentVersion READ currentVersion CONSTANT FINAL)
    Q_PROPERTY(QString currentBuild READ currentBuild CONSTANT FINAL)
    Q_PROPERTY(QString plainNotes READ plainNotes NOTIFY stateChanged FINAL)

public:
    using State = UpdateState;
    /// Who has asked for a check. The failures of checks by the timer are not shown.
    enum class Asker { User, Timer };

    /// The time between the launch and the first check.
    static constexpr std::chrono::milliseconds FirstCheckAfter = std::chrono::seconds(6);
    /// The time between two checks by the timer: 4 hours.
    static constexpr std::chrono::milliseconds CheckEvery = std::chrono::seconds(14400);

    explicit Updater(UpdaterContext context);

    /// Called once at launch: finds out whether a release was just installed, and starts the timers.
    void start();

    /// Asks the feed, and downloads a newer release if the user has asked or has allowed automatic downloads. Does not
    /// fail; the result is in `state`. Does nothing while another check, a download or an installation is running, nor,
    /// for the timer, if a release is ready.
    QCoro::Task<> check(Asker asker);
    /// The same, asked by the user. Returns the alert to show, if there is one.
    QCoro::Task<std::optional<UpdateAlert>> checkFromMenu();
    /// Fetches, unpacks and verifies a release. Does not fail; the result is in `state`. Does nothing while a download
    /// or an installation is running.
    QCoro::Task<> download(ReleaseInfo release);

    /// `check` for the user, without waiting for it.
    Q_INVOKABLE void checkNow();
    /// `download` for the release that is available, without waiting for it; does nothing in another state.
    Q_INVOKABLE void downloadNow();
    /// Stores the notes of the release that is ready, starts the script that installs it and asks the program to end.
    /// Does nothing if no release is ready. If the folder of the program cannot be written or the script cannot be
    /// started, `state` says so.
    Q_INVOKABLE void installAndRelaunch();
    /// Forgets `whatsNew`; called when the user has read it.
    Q_INVOKABLE void dismissWhatsNew();

    const State &state() const { return m_state; }
    /// The time of the last successful read of the feed, in UTC.
    const std::optional<QDateTime> &lastCheck() const { return m_lastCheck; }
    bool hasLastCheck() const { return m_lastCheck.has_value(); }
    QDateTime lastCheckOrInvalid() const { return m_lastCheck.value_or(QDateTime()); }
    /// The release that was installed by the last relaunch, until it was announced.
    const std::optional<ReleaseInfo> &whatsNew() const { return m_whatsNew; }
    bool hasWhatsNew() const { return m_whatsNew.has_value(); }
    ReleaseInfo whatsNewOrEmpty() const { return m_whatsNew.value_or(ReleaseInfo()); }

    /// Whether the feed is asked on a schedule.
    bool automaticChecks() const { return m_automaticChecks; }
    void setAutomaticChecks(bool on);
    /// Whether a release that the timer finds is downloaded without asking.
    bool automaticDownloads() const { return m_automaticDownloads; }
    void setAutomaticDownloads(bool on);
    /// The address of the feed as the user has typed it; the built-in feed is used if it is blank.
    const QString &customFeed() const { return m_customFeed; }
    void setCustomFeed(const QString &address);

    /// The address of the feed that is asked; absent if there is none or if it has no scheme.
    std::optional<QUrl> feedURL() const;
    bool hasFeed() const { return feedURL().has_value(); }
    /// The address that the packaging has built in; absent if there is none.
    std::optional<QString> bundledFeed() const;
    QString bundledFeedOrEmpty() const { return bundledFeed().value_or(QString()); }

    const QString &currentVersion() const { return m_context.bundles->running().version; }
    const QString &currentBuild() const { return m_context.bundles->running().build; }
    /// True if the release is newer than the running program.
    bool isNewer(const ReleaseInfo &release) const;
    /// The notes of the release in `state` as plain text; empty if there are none.
    QString plainNotes() const;

    /// The verified application that `installAndRelaunch` installs; empty if there is none.
    const QString &preparedApp() const { return m_preparedApp; }

Q_SIGNALS:
    void stateChanged();
    void lastCheckChanged();
    void whatsNewChanged();
    void automaticChecksChanged();
    void automaticDownloadsChanged();
    void customFeedChanged();

private:
    void setState(State state);
    void setLastCheck(const QDateTime &time);
    void scheduleChecks();
    void checkByTimer();
    QCoro::Task<ReleaseInfo> readFeed(QUrl address);
    /// The state that the release leads to, before any download.
    State found(const ReleaseInfo &release) const;
    std::optional<UpdateAlert> alert() const;
    QCoro::Task<QString> prepared(ReleaseInfo release, QUrl address);
    void detectFreshInstall();

    UpdaterContext m_context;
    State m_state;
    std::optional<QDateTime> m_lastCheck;
    std::optional<ReleaseInfo> m_whatsNew;
    bool m_automaticChecks = true;
    bool m_automaticDownloads = true;
    QString m_customFeed;
    QString m_preparedApp;
    Clock::TimerHandle m_firstCheck;
    Clock::TimerHandle m_timer;
};
