#include "http/TransportError.h"
#include "update/UpdatePreferences.h"
#include "update/UpdaterFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class UpdaterInstallTest : public UpdaterFixture
{
protected:
    UpdaterInstallTest() { open(); }

    QString work() const { return folder.filePath(u"Velmora-update-122"_s); }
    void prepare()
    {
        offerArchive();
        EXPECT_EQ(download(newer()), State(State::Ready{newer()}));
    }
};

TEST_F(UpdaterInstallTest, DownloadsUnpacksAndVerifies)
{
    prepare();
    EXPECT_EQ(updater->preparedApp(), work() + u"/Velmora.app"_s);
    EXPECT_EQ(bundles->verified, updater->preparedApp());
    EXPECT_EQ(bundles->verifiedRelease, u"1.5 122"_s);
    QFile zip(work() + u"/update.zip"_s);
    ASSERT_TRUE(zip.open(QIODevice::ReadOnly));
    EXPECT_EQ(zip.readAll(), Content);
}

TEST_F(UpdaterInstallTest, ARelativeAddressIsResolvedAgainstTheFeed)
{
    ReleaseInfo release = newer();
    const QList<std::pair<QString, QString>> addresses = {
        {u"Velmora.zip"_s, u"https://updates.example/velmora/Velmora.zip"_s},
        {u"/a/b.zip"_s, u"https://updates.example/a/b.zip"_s},
        {u"../c.zip?d=e"_s, u"https://updates.example/c.zip?d=e"_s},
        {u"https://cdn.example/f.zip"_s, u"https://cdn.example/f.zip"_s}};
    offerArchive();
    for (const auto &[address, resolved] : addresses) {
        release.url = address;
        download(release);
        EXPECT_EQ(transport.archives.last().argument().toString(), resolved);
    }
}

TEST_F(UpdaterInstallTest, WithoutAUsableAddressNothingIsFetched)
{
    ReleaseInfo release = newer();
    for (const QString &address : {u"http://[1"_s, u"https://a b.example/"_s}) {
        release.url = address;
        download(release);
        EXPECT_EQ(failure(), "Adresse de téléchargement invalide.");
    }
    updater->setCustomFeed(u"no scheme"_s);
    download(newer());
    EXPECT_EQ(failure(), "Adresse de téléchargement invalide.");
    EXPECT_EQ(transport.archives.count(), 0);
}

TEST_F(UpdaterInstallTest, AFeedFromAServerCannotNameALocalFile)
{
    ReleaseInfo release = newer();
    release.url = u"file:///etc/passwd"_s;
    download(release);
    EXPECT_EQ(failure(), "Adresse de téléchargement invalide.");
    EXPECT_EQ(transport.archives.count(), 0);
}

TEST_F(UpdaterInstallTest, AStatusOutside2xxFails)
{
    transport.archives.answerWith({.status = 404, .file = {}, .sha256 = {}});
    download(newer());
    EXPECT_EQ(failure(), "Le serveur de mises à jour a répondu 404.");
}

TEST_F(UpdaterInstallTest, AFailureOfTheNetworkIsTold)
{
    transport.archives.failWith(TransportError(TransportError::Kind::ConnectionLost));
    download(newer());
    EXPECT_EQ(failure(), "La connexion au serveur a été interrompue.");
}

TEST_F(UpdaterInstallTest, AFailureAfterAvailableIsToldAlsoToTheTimer)
{
    offer(newer());
    transport.archives.failWith(TransportError(TransportError::Kind::ConnectionLost));
    check(Updater::Asker::Timer);
    EXPECT_EQ(failure(), "La connexion au serveur a été interrompue.");
}

TEST_F(UpdaterInstallTest, AnotherHashFails)
{
    ReleaseInfo release = newer();
    release.sha256[0] = release.sha256[0] == u'0' ? u'1' : u'0';
    offerArchive();
    download(release);
    EXPECT_EQ(failure(), "Le fichier téléchargé est corrompu (empreinte SHA-256 différente).");
    EXPECT_TRUE(bundles->verified.isEmpty());
}

TEST_F(UpdaterInstallTest, AHashInUpperCaseMatches)
{
    ReleaseInfo release = newer();
    release.sha256 = release.sha256.toUpper();
    offerArchive();
    EXPECT_EQ(download(release), State(State::Ready{release}));
}

TEST_F(UpdaterInstallTest, AHashWithBlanksDoesNotMatch)
{
    ReleaseInfo release = newer();
    release.sha256 += u' ';
    offerArchive();
    EXPECT_TRUE(download(release).is(Kind::Failed));
}

TEST_F(UpdaterInstallTest, ARefusedArchiveIsTold)
{
    bundles->unpackFailure = UpdateError::tool(u"ditto a échoué (1)."_s);
    offerArchive();
    download(newer());
    EXPECT_EQ(failure(), "ditto a échoué (1).");
}

TEST_F(UpdaterInstallTest, AnArchiveWithoutAnApplicationFails)
{
    bundles->unpacked = {u"sub/Velmora.app"_s, u"Velmora.application"_s, u"Velmora.APP"_s,
                         u"app"_s};
    offerArchive();
    download(newer());
    EXPECT_EQ(failure(), "L'archive ne contient pas Velmora.app.");
}

TEST_F(UpdaterInstallTest, ARefusedSignatureIsTold)
{
    bundles->verifyFailure = UpdateError::signature(u"signature illisible"_s);
    offerArchive();
    download(newer());
    EXPECT_EQ(failure(), "Signature refusée : signature illisible");
    updater->installAndRelaunch();
    EXPECT_EQ(quits, 0);
}

TEST_F(UpdaterInstallTest, TheWorkingFolderIsPrivate)
{
    prepare();
    struct stat status = {};
    ASSERT_EQ(::stat(work().toLocal8Bit().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0700U);
}

TEST_F(UpdaterInstallTest, ALaterDownloadReplacesTheWorkingFolder)
{
    QDir().mkpath(work() + u"/remains"_s);
    prepare();
    EXPECT_FALSE(QFile::exists(work() + u"/remains"_s));
}

TEST_F(UpdaterInstallTest, ALinkInPlaceOfTheWorkingFolderIsNotFollowed)
{
    QDir().mkpath(folder.filePath(u"precious/content"_s));
    QFile::link(folder.filePath(u"precious"_s), work());
    prepare();
    EXPECT_TRUE(QFile::exists(folder.filePath(u"precious/content"_s)));
    EXPECT_FALSE(QFileInfo(work()).isSymLink());
}

TEST_F(UpdaterInstallTest, ABuildCannotLeadToAnotherFolder)
{
    ReleaseInfo release = newer();
    release.build = u"../../escaped/é"_s;
    offerArchive();
    download(release);
    EXPECT_EQ(updater->preparedApp(),
              folder.filePath(u"Velmora-update-..%2F..%2Fescaped%2F%C3%A9/Velmora.app"_s));
}

TEST_F(UpdaterInstallTest, AFolderThatCannotBeMadeIsTold)
{
    // A file in place of the parent.
    updater.emplace(UpdaterContext{.clock = clock,
                                   .preferences = preferences,
                                   .transport = transport,
                                   .bundles = bundles,
                                   .quit = [] {},
                                   .temporaryFolder = u"/dev/null/below"_s});
    offerArchive();
    download(newer());
    EXPECT_EQ(failure(), "Impossible de préparer la mise à jour dans « "
                         "/dev/null/below/Velmora-update-122 » : Not a directory.");
}

TEST_F(UpdaterInstallTest, StartsTheScriptAndQuits)
{
    prepare();
    updater->installAndRelaunch();
    EXPECT_EQ(updater->state(), State(State::Installing{}));
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(bundles->started, work() + u"/install.sh"_s);
    QFile script(bundles->started);
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    EXPECT_EQ(script.readAll(), QByteArray::number(QCoreApplication::applicationPid()) + ' ' +
                                    updater->preparedApp().toUtf8());
    EXPECT_EQ(UpdatePreferences(preferences).pendingNotes(), newer());
}

TEST_F(UpdaterInstallTest, NothingIsInstalledUnlessAReleaseIsReady)
{
    updater->installAndRelaunch();
    EXPECT_EQ(updater->state(), State());
    EXPECT_EQ(quits, 0);
}

TEST_F(UpdaterInstallTest, AFolderThatCannotBeWrittenIsToldAtTheButton)
{
    bundles->canReplace = false;
    prepare();
    updater->installAndRelaunch();
    EXPECT_EQ(failure(), "Impossible d'écrire dans « /home/person/Applications ». "
                         "Installe la mise à jour à la main.");
    EXPECT_EQ(quits, 0);
    EXPECT_TRUE(bundles->started.isEmpty());
    EXPECT_FALSE(QFile::exists(work() + u"/install.sh"_s));
    EXPECT_FALSE(UpdatePreferences(preferences).pendingNotes());
}

TEST_F(UpdaterInstallTest, AScriptThatCannotBeWrittenIsTold)
{
    prepare();
    QDir(work()).mkdir(u"install.sh"_s);
    updater->installAndRelaunch();
    EXPECT_TRUE(failure().starts_with("Le script d'installation n'a pas pu être écrit : "))
        << failure();
    EXPECT_EQ(quits, 0);
    EXPECT_EQ(UpdatePreferences(preferences).pendingNotes(), newer());
}

TEST_F(UpdaterInstallTest, AScriptThatCannotBeStartedIsTold)
{
    prepare();
    bundles->canStart = false;
    updater->installAndRelaunch();
    EXPECT_EQ(failure(), "Le script d'installation n'a pas pu être lancé.");
    EXPECT_EQ(quits, 0);
}

TEST_F(UpdaterInstallTest, TheUpdaterMayGoDuringADownload)
{
    const TaskResult<void> result(updater->download(newer()));
    updater.reset();
    transport.archives.last().finish(ScriptedTransport::archive(Content));
    EXPECT_TRUE(result.isDone());
    EXPECT_FALSE(QFile::exists(work()));
}

TEST_F(UpdaterInstallTest, AnAvailableReleaseIsDownloadedOnDemand)
{
    updater->setAutomaticDownloads(false);
    updater->downloadNow();
    EXPECT_EQ(transport.archives.count(), 0);
    offer(newer());
    check(Updater::Asker::Timer);
    offerArchive();
    updater->downloadNow();
    EXPECT_TRUE(runUntil([&] { return updater->state().is(Kind::Ready); }));
    updater->downloadNow();
    EXPECT_EQ(transport.archives.count(), 1);
}

TEST_F(UpdaterInstallTest, OnlyOneDownloadRuns)
{
    const TaskResult<void> first(updater->download(newer()));
    const TaskResult<void> second(updater->download(newer()));
    EXPECT_TRUE(second.isDone());
    EXPECT_EQ(transport.archives.count(), 1);
}

/// The launches after an installation of build 122.
class UpdaterRelaunchTest : public UpdaterFixture
{
protected:
    void launch(const QString &build)
    {
        RunningApp app = runningApp();
        app.build = build;
        open(app).start();
    }
    void storeNotes() { UpdatePreferences(preferences).setPendingNotes(newer()); }
    bool hasNotes() { return UpdatePreferences(preferences).pendingNotes().has_value(); }
};

TEST_F(UpdaterRelaunchTest, TheFirstLaunchAfterAnInstallationShowsItOnce)
{
    launch(u"121"_s);
    storeNotes();
    launch(u"122"_s);
    EXPECT_EQ(updater->whatsNew(), newer());
    EXPECT_FALSE(hasNotes());
    EXPECT_EQ(preferences.text(u"updates.lastLaunchedBuild"_s), u"122"_s);
    updater->dismissWhatsNew();
    EXPECT_FALSE(updater->whatsNew());
    launch(u"122"_s);
    EXPECT_FALSE(updater->whatsNew());
}

TEST_F(UpdaterRelaunchTest, ASecondLaunchOfTheSameBuildAnnouncesNothing)
{
    launch(u"122"_s);
    storeNotes();
    launch(u"122"_s);
    EXPECT_FALSE(updater->whatsNew());
    EXPECT_TRUE(hasNotes());
}

TEST_F(UpdaterRelaunchTest, AfterARollBackTheNotesStayStored)
{
    launch(u"120"_s);
    storeNotes();
    launch(u"121"_s);
    EXPECT_FALSE(updater->whatsNew());
    EXPECT_TRUE(hasNotes());
}

TEST_F(UpdaterRelaunchTest, AFirstLaunchShowsNothing)
{
    storeNotes();
    launch(u"122"_s);
    EXPECT_FALSE(updater->whatsNew());
    EXPECT_TRUE(hasNotes());
    EXPECT_EQ(preferences.text(u"updates.lastLaunchedBuild"_s), u"122"_s);
}

TEST_F(UpdaterRelaunchTest, NotesThatCannotBeReadAreIgnored)
{
    launch(u"121"_s);
    preferences.setBytes(u"updates.pendingNotes"_s, "{}");
    launch(u"122"_s);
    EXPECT_FALSE(updater->whatsNew());
    EXPECT_EQ(preferences.bytes(u"updates.pendingNotes"_s), "{}");
}

} // namespace
