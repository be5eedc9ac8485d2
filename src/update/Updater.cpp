#include "update/Updater.h"

#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "platform/Wording.h"
#include "platform/bundles/UpdateError.h"
#include "update/ReleaseNotes.h"
#include "update/ReleaseOrder.h"
#include "update/UpdatePreferences.h"

#include <utility>

using namespace Qt::StringLiterals;

Updater::Updater(UpdaterContext context) : m_context(std::move(context))
{
    const UpdatePreferences stored(m_context.preferences);
    m_lastCheck = stored.lastCheck();
    m_automaticChecks = stored.automaticChecks();
    m_automaticDownloads = stored.automaticDownloads();
    m_customFeed = stored.customFeed();
}

void Updater::start()
{
    detectFreshInstall();
    scheduleChecks();
    m_firstCheck = m_context.clock.after(FirstCheckAfter, [this] {
        if (m_automaticChecks)
            checkByTimer();
    });
}

void Updater::scheduleChecks()
{
    m_timer.reset();
    if (m_automaticChecks)
        m_timer = m_context.clock.every(CheckEvery, [this] { checkByTimer(); });
}

void Updater::checkByTimer()
{
    spawn(check(Asker::Timer));
}

void Updater::checkNow()
{
    spawn(check(Asker::User));
}

QCoro::Task<> Updater::check(Asker asker)
{
    const bool isBusy = m_state.is(State::Kind::Checking) || m_state.is(State::Kind::Downloading) ||
                        m_state.is(State::Kind::Installing);
    if (isBusy || (m_state.is(State::Kind::Ready) && asker == Asker::Timer))
        co_return;
    const auto feed = feedURL();
    if (!feed) {
        if (asker == Asker::User)
            setState(State::Failed{
                u"Aucun canal de mise à jour configuré (Réglages › Mises à jour)."_s});
        co_return;
    }
    setState(State::Checking{});
    ReleaseInfo release;
    try {
        release = co_await readFeed(*feed);
    } catch (const Failure &failure) {
        setState(asker == Asker::User ? State(State::Failed{failure.message()}) : State());
        co_return;
    }
    setLastCheck(m_context.clock.now());
    setState(found(release));
    const bool wantsDownload = m_automaticDownloads || asker == Asker::User;
    if (m_state.is(State::Kind::Available) && wantsDownload)
        co_await download(release);
}

QCoro::Task<ReleaseInfo> Updater::readFeed(QUrl address)
{
    const auto document =
        co_await whileAlive(this, m_context.transport.readFeed(std::move(address)));
    if (document.status && (*document.status < 200 || *document.status > 299))
        throw UpdateError::badResponse(*document.status);
    auto release = ReleaseInfo::decoded(document.body);
    if (!release)
        throw Failure(release.error());
    co_return *release;
}

Updater::State Updater::found(const ReleaseInfo &release) const
{
    if (!isNewer(release))
        return State::UpToDate{};
    if (release.minimumSystemVersion) {
        const auto minimum = ReleaseOrder::systemVersion(*release.minimumSystemVersion);
        if (!m_context.bundles->isSystemAtLeast(minimum.major, minimum.minor))
            return State::Failed{u"La version "_s + release.version +
                                 Wording::localized(u" nécessite macOS "_s) +
                                 *release.minimumSystemVersion + u'.'};
    }
    return State::Available{release};
}

QCoro::Task<std::optional<UpdateAlert>> Updater::checkFromMenu()
{
    co_await check(Asker::User);
    co_return alert();
}

std::optional<UpdateAlert> Updater::alert() const
{
    if (const auto *ready = std::get_if<State::Ready>(&m_state.value())) {
        const QString running = u"Tu utilises la version "_s + currentVersion() + u'.';
        return UpdateAlert{.title = u"Velmora "_s + ready->release.version +
                                    u" est prêt à être installé"_s,
                           .text = ReleaseNotes::plain(ready->release.notes).value_or(running),
                           .buttons = {u"Redémarrer et installer"_s, u"Plus tard"_s}};
    }
    if (m_state.is(State::Kind::UpToDate))
        return UpdateAlert{.title = u"Velmora est à jour"_s,
                           .text = u"Tu utilises la dernière version ("_s + currentVersion() +
                                   u" ("_s + currentBuild() + u"))."_s,
                           .buttons = {}};
    if (m_state.is(State::Kind::Failed))
        return UpdateAlert{.title = u"Mise à jour impossible"_s,
                           .text = m_state.failureOrEmpty(),
                           .buttons = {},
                           .isWarning = true};
    return std::nullopt;
}

void Updater::setAutomaticChecks(bool on)
{
    if (on == m_automaticChecks)
        return;
    m_automaticChecks = on;
    UpdatePreferences(m_context.preferences).setAutomaticChecks(on);
    scheduleChecks();
    Q_EMIT automaticChecksChanged();
}

void Updater::setAutomaticDownloads(bool on)
{
    if (on == m_automaticDownloads)
        return;
    m_automaticDownloads = on;
    UpdatePreferences(m_context.preferences).setAutomaticDownloads(on);
    Q_EMIT automaticDownloadsChanged();
}

void Updater::setCustomFeed(const QString &address)
{
    if (address == m_customFeed)
        return;
    m_customFeed = address;
    UpdatePreferences(m_context.preferences).setCustomFeed(address.trimmed());
    Q_EMIT customFeedChanged();
}

std::optional<QString> Updater::bundledFeed() const
{
    const QString feed = m_context.bundles->running().feed.trimmed();
    return feed.isEmpty() ? std::nullopt : std::optional(feed);
}

std::optional<QUrl> Updater::feedURL() const
{
    const QString typed = m_customFeed.trimmed();
    const QUrl url(typed.isEmpty() ? bundledFeedOrEmpty() : typed, QUrl::StrictMode);
    return url.isValid() && !url.scheme().isEmpty() ? std::optional(url) : std::nullopt;
}

bool Updater::isNewer(const ReleaseInfo &release) const
{
    return ReleaseOrder::isNewer(release, currentVersion(), currentBuild());
}

QString Updater::plainNotes() const
{
    const ReleaseInfo *release = m_state.release();
    return release ? ReleaseNotes::plain(release->notes).value_or(QString()) : QString();
}

void Updater::setState(State state)
{
    if (state == m_state)
        return;
    m_state = std::move(state);
    Q_EMIT stateChanged();
}

void Updater::setLastCheck(const QDateTime &time)
{
    UpdatePreferences(m_context.preferences).setLastCheck(time);
    if (m_lastCheck == time)
        return;
    m_lastCheck = time;
    Q_EMIT lastCheckChanged();
}
