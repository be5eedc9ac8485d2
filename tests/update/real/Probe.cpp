/// A program that updates itself: it stands for Velmora in a bundle. It reads its files and folders from the environment:
/// VELMORA_MARK is the file in which it says which version has started and what it announces, VELMORA_PREFERENCES its
/// preferences, TMPDIR where it downloads. As build 121 it updates itself, every other build ends at once.
#include "platform/bundles/AppBundles.h"
#include "simulator/server/Certificates.h"
#include "update/HttpTransport.h"
#include "update/Updater.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

void say(const QString &text)
{
    QFile file(qEnvironmentVariable("VELMORA_MARK"));
    if (file.open(QIODevice::Append))
        file.write(text.toUtf8() + '\n');
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Certificates::TrustedAuthority trusted;
    SystemClock clock;
    Preferences preferences(qEnvironmentVariable("VELMORA_PREFERENCES"));
    HttpTransport transport(clock, QDir::tempPath());
    Updater updater({.clock = clock,
                     .preferences = preferences,
                     .transport = transport,
                     .bundles = AppBundles::ofThisSystem(),
                     .quit = [] { QCoreApplication::quit(); },
                     .temporaryFolder = QDir::tempPath()});
    updater.start();
    say(updater.currentVersion() + u' ' + updater.whatsNewOrEmpty().notesOrEmpty());
    if (updater.currentBuild() != "121"_L1)
        return 0;
    QObject::connect(&updater, &Updater::stateChanged, &application, [&] {
        if (updater.state().is(UpdateState::Kind::Failed)) {
            say(updater.state().failureOrEmpty());
            QCoreApplication::exit(1);
        }
        if (updater.state().is(UpdateState::Kind::Ready))
            QMetaObject::invokeMethod(&updater, &Updater::installAndRelaunch, Qt::QueuedConnection);
    });
    updater.checkNow();
    return QCoreApplication::exec();
}
