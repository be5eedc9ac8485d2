#include "app/AddressOpener.h"
#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/SingleInstance.h"
#include "app/VelmoraApp.h"
#include "platform/TerminationSignals.h"
#include "platform/decoding/helper/DecodeMain.h"

#include <QApplication>
#include <QStandardPaths>

#include <optional>

namespace {

/// Passes the desktop's activation token to the next window, so that the desktop brings it to the front.
void takeToken(const QByteArray &token)
{
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
}

} // namespace

int main(int argc, char **argv)
{
    if (const auto code = decodeIfAsked(argc, argv))
        return *code;
    chooseRenderer();
    interpretAtFirst();
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setDesktopFileName(QStringLiteral("fr.orvantis.Velmora"));
    const QApplication application(argc, argv);
    // `AppDelegate` decides when the process ends.
    QApplication::setQuitOnLastWindowClosed(false);

    SystemClock clock;
    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation),
                            clock);
    const QString address = QApplication::arguments().value(1);
    std::optional<VelmoraApp> velmora;
    std::optional<AddressOpener> opener;
    QObject::connect(&instance, &SingleInstance::isSecond, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    QObject::connect(&instance, &SingleInstance::isFirst, &application, [&] {
        velmora.emplace();
        opener.emplace(velmora->store(), velmora->scenes());
        if (!velmora->open())
            return QApplication::exit(1);
        opener->open(address);
    });
    QObject::connect(&instance, &SingleInstance::asked, &application,
                     [&velmora, &opener](const QByteArray &token, const QByteArray &request) {
                         takeToken(token);
                         if (request.isEmpty())
                             velmora->delegate().showMainWindow();
                         else
                             opener->open(QString::fromUtf8(request));
                     });
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::asked, &application, [&velmora] {
        if (velmora)
            velmora->quit(Farewell::Reason::System);
        else
            QApplication::quit();
    });
    instance.start(address.toUtf8());
    return QApplication::exec();
}
