#include "app/InputFrames.h"

#include <QGuiApplication>
#include <QWindow>
#include <qpa/qplatformwindow.h>

using namespace Qt::StringLiterals;

InputFrames::InputFrames()
{
    qGuiApp->installEventFilter(this);
}

bool InputFrames::isUsefulOn(const QString &platformName)
{
    return platformName == "xcb"_L1;
}

bool InputFrames::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        m_idle.start(0, this);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void InputFrames::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_idle.timerId())
        return QObject::timerEvent(event);
    m_idle.stop();
    for (QWindow *window : QGuiApplication::allWindows()) {
        // Draws nothing if no frame is requested.
        if (QPlatformWindow *platform = window->handle())
            platform->deliverUpdateRequest();
    }
}
