#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/SingleInstance.h"
#include "app/VelmoraApp.h"
#include "platform/TerminationSignals.h"

#include <QApplication>
#include <QStandardPaths>

#include <optional>

namespace {

/// Lets the windows that follow come forward in the name of what the desktop knows by this token.
void takeToken(const QByteArray &token)
{
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
}

} // namespace

int main(int argc, char **argv)
{
    chooseRenderer();
    interpretAtFirst();
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setDesktopFileName(QStringLiteral("fr.orvantis.Velmora"));
    const QApplication application(argc, argv);
    // The delegate decides.
    QApplication::setQuitOnLastWindowClosed(false);

    SystemClock clock;
    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation),
                            clock);
    std::optional<VelmoraApp> velmora;
    QObject::connect(&instance, &SingleInstance::isSecond, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    QObject::connect(&instance, &SingleInstance::isFirst, &application, [&velmora] {
        velmora.emplace();
        if (!velmora->open())
            QApplication::exit(1);
    });
    QObject::connect(&instance, &SingleInstance::asked, &application,
                     [&velmora](const QByteArray &token) {
                         takeToken(token);
                         velmora->delegate().showMainWindow();
                     });
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::asked, &application, [&velmora] {
        if (velmora)
            velmora->quit();
        else
            QApplication::quit();
    });
    instance.start();
    return QApplication::exec();
}
