#include "app/Renderer.h"
#include "app/VelmoraApp.h"

#include <QGuiApplication>

int main(int argc, char **argv)
{
    chooseRenderer();
    QGuiApplication::setApplicationName(QStringLiteral("Velmora"));
    QGuiApplication::setDesktopFileName(QStringLiteral("fr.orvantis.Velmora"));
    const QGuiApplication application(argc, argv);
    VelmoraApp velmora;
    return velmora.open() ? QGuiApplication::exec() : 1;
}
