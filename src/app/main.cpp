#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/RequestHandler.h"
#include "app/SingleInstance.h"
#include "app/VelmoraApp.h"
#include "desktop/DesktopServices.h"
#include "platform/TerminationSignals.h"
#include "platform/decoding/helper/DecodeMain.h"

#include <QApplication>
#include <QStandardPaths>

#include <memory>
#include <optional>

int main(int argc, char **argv)
{
    if (const auto code = decodeIfAsked(argc, argv))
        return *code;
    chooseRenderer();
    interpretAtFirst();
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setDesktopFileName(QStringLiteral("fr.orvantis.Velmora"));
    const Activation activation = Activation::ofEnvironment();
    const QApplication application(argc, argv);
    // `AppDelegate` decides when the process ends.
    QApplication::setQuitOnLastWindowClosed(false);

    SystemClock clock;
    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation),
                            clock);
    const QByteArray request = QApplication::arguments().value(1).toUtf8();
    std::optional<VelmoraApp> velmora;
    std::optional<RequestHandler> requests;
    std::unique_ptr<DesktopServices> services;
    QObject::connect(&instance, &SingleInstance::isSecond, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    QObject::connect(&instance, &SingleInstance::isFirst, &application, [&] {
        velmora.emplace();
        requests.emplace(velmora->store(), velmora->scenes());
        if (!velmora->open())
            return QApplication::exit(1);
        if (!request.isEmpty())
            requests->carryOut({}, request);
        services = DesktopServices::ofThisSystem(velmora->store());
        if (services)
            QObject::connect(services.get(), &DesktopServices::asked, &*requests,
                             &RequestHandler::carryOut);
        if (auto *shortcuts = velmora->shortcuts())
            QObject::connect(shortcuts, &DesktopShortcuts::activated, &*requests,
                             &RequestHandler::carryOutShortcut);
    });
    QObject::connect(&instance, &SingleInstance::asked, &application,
                     [&requests](const Activation &token, const QByteArray &asked) {
                         requests->carryOut(token, asked);
                     });
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::asked, &application, [&velmora] {
        if (velmora)
            velmora->quit(Farewell::Reason::System);
        else
            QApplication::quit();
    });
    instance.start(request, activation);
    return QApplication::exec();
}
