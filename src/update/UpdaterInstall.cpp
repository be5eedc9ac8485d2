#include "async/OffThread.h"
#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "platform/bundles/UpdateError.h"
#include "update/Preparation.h"
#include "update/UpdatePreferences.h"
#include "update/Updater.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

/// The address of the archive; nothing if it is no address, or if a feed from a server names a local file.
std::optional<QUrl> archiveAddress(const ReleaseInfo &release, const std::optional<QUrl> &feed)
{
    const QUrl relative(release.url, QUrl::StrictMode);
    if (!feed || !relative.isValid())
        return std::nullopt;
    const QUrl address = feed->resolved(relative);
    const bool leavesTheServer = address.isLocalFile() && !feed->isLocalFile();
    const bool isUsable = address.isValid() && !address.isRelative() && !leavesTheServer;
    return isUsable ? std::optional(address) : std::nullopt;
}

/// Writes the script completely or not at all.
void writeScript(const QString &path, const QByteArray &script)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(script) != script.size() || !file.commit())
        throw UpdateError::tool(u"Le script d'installation n'a pas pu être écrit : "_s +
                                file.errorString());
}

} // namespace

QCoro::Task<> Updater::download(ReleaseInfo release)
{
    if (m_state.is(State::Kind::Downloading) || m_state.is(State::Kind::Installing))
        co_return;
    const auto address = archiveAddress(release, feedURL());
    if (!address) {
        setState(State::Failed{u"Adresse de téléchargement invalide."_s});
        co_return;
    }
    setState(State::Downloading{release});
    try {
        m_preparedApp = co_await prepared(release, *address);
    } catch (const Failure &failure) {
        setState(State::Failed{failure.message()});
        co_return;
    }
    setState(State::Ready{release});
}

QCoro::Task<QString> Updater::prepared(ReleaseInfo release, QUrl address)
{
    auto archive = co_await whileAlive(this, m_context.transport.fetchArchive(std::move(address)));
    if (archive.status && (*archive.status < 200 || *archive.status > 299))
        throw UpdateError::badResponse(*archive.status);
    auto preparing = offThread(
        [bundles = m_context.bundles, archive, release, folder = m_context.temporaryFolder] {
            return Preparation::preparedApp(*bundles, archive, release, folder);
        });
    co_return co_await whileAlive(this, std::move(preparing));
}

void Updater::downloadNow()
{
    if (const auto *available = std::get_if<State::Available>(&m_state.value()))
        spawn(download(available->release));
}

void Updater::installAndRelaunch()
{
    const auto *ready = std::get_if<State::Ready>(&m_state.value());
    if (!ready || m_preparedApp.isEmpty())
        return;
    const AppBundles &bundles = *m_context.bundles;
    try {
        if (!bundles.canReplaceRunning())
            throw UpdateError::notWritable(QFileInfo(bundles.running().path).path());
        UpdatePreferences(m_context.preferences).setPendingNotes(ready->release);
        const QString script = QFileInfo(m_preparedApp).path() + u"/install.sh"_s;
        writeScript(script, bundles.swapScript(QCoreApplication::applicationPid(), m_preparedApp));
        if (!bundles.start(script))
            throw UpdateError::tool(u"Le script d'installation n'a pas pu être lancé."_s);
    } catch (const Failure &failure) {
        setState(State::Failed{failure.message()});
        return;
    }
    setState(State::Installing{});
    m_context.quit();
}

void Updater::detectFreshInstall()
{
    UpdatePreferences stored(m_context.preferences);
    const auto previous = stored.lastLaunchedBuild();
    stored.setLastLaunchedBuild(currentBuild());
    if (!previous || *previous == currentBuild())
        return;
    const auto release = stored.pendingNotes();
    if (!release || release->build != currentBuild())
        return;
    stored.clearPendingNotes();
    m_whatsNew = release;
    Q_EMIT whatsNewChanged();
}

void Updater::dismissWhatsNew()
{
    if (std::exchange(m_whatsNew, std::nullopt))
        Q_EMIT whatsNewChanged();
}
