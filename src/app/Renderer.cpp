#include "app/Renderer.h"

#include <QDir>
#include <QQuickWindow>

namespace {

bool hasGraphicsHardware()
{
#ifdef Q_OS_LINUX
    // A graphics driver with hardware acceleration provides a render node; virtual machines and plain X servers have
    // none.
    const QDir nodes(QStringLiteral("/dev/dri"));
    return !nodes.entryList({QStringLiteral("renderD*")}, QDir::System).isEmpty();
#else
    return true;
#endif
}

} // namespace

void chooseRenderer()
{
    const bool isChosenByUser = qEnvironmentVariableIsSet("QT_QUICK_BACKEND") ||
                                qEnvironmentVariableIsSet("QSG_RHI_BACKEND");
    if (!isChosenByUser && !hasGraphicsHardware())
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}
