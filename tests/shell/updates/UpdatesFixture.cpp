#include "shell/updates/UpdatesFixture.h"

#include "update/UpdatePreferences.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Content = "the archive";

} // namespace

ReleaseInfo UpdatesFixture::release(const QString &notes)
{
    ReleaseInfo release;
    release.version = u"1.4.0"_s;
    release.build = u"140"_s;
    release.url = u"Velmora-1.4.0.zip"_s;
    release.sha256 =
        QString::fromLatin1(QCryptographicHash::hash(Content, QCryptographicHash::Sha256).toHex());
    if (!notes.isEmpty())
        release.notes = notes;
    return release;
}

void UpdatesFixture::offer(const ReleaseInfo &release)
{
    offerWithoutArchive(release);
    transport->archives.answerBy([](const QUrl &) { return ScriptedTransport::archive(Content); });
}

void UpdatesFixture::offerWithoutArchive(const ReleaseInfo &release)
{
    transport->feeds.answerWith({.status = 200, .body = release.encoded()});
}

void UpdatesFixture::failFeed(int status)
{
    transport->feeds.answerWith({.status = status, .body = {}});
}

bool UpdatesFixture::reaches(Kind kind)
{
    return QTest::qWaitFor([&] { return updater().state().is(kind); });
}

void UpdatesFixture::openWithAvailable(const ReleaseInfo &release)
{
    openOnDemo();
    desktop->setPrefersReducedMotion(true);
    updater().setAutomaticDownloads(false);
    offerWithoutArchive(release);
    clock->advance(Updater::FirstCheckAfter);
    ASSERT_TRUE(reaches(Kind::Available));
    settle();
}

void UpdatesFixture::openWithReady(const ReleaseInfo &release)
{
    openOnDemo();
    desktop->setPrefersReducedMotion(true);
    offer(release);
    clock->advance(Updater::FirstCheckAfter);
    ASSERT_TRUE(reaches(Kind::Ready));
    settle();
}

void UpdatesFixture::openAfterUpdateTo(const ReleaseInfo &release)
{
    {
        Preferences preferences(preferencesPath);
        UpdatePreferences stored(preferences);
        stored.setLastLaunchedBuild(u"132"_s);
        stored.setPendingNotes(release);
    }
    runningApp.version = release.version;
    runningApp.build = release.build;
    openOnDemo();
    desktop->setPrefersReducedMotion(true);
    settle();
}
