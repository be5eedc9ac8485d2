#include "shell/about/FrameWatch.h"

#include "shell/about/About.h"

#include <QKeyEvent>
#include <QQuickWindow>

namespace {

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
           key == Qt::Key_Meta || key == Qt::Key_AltGr;
}

} // namespace

FrameWatch::FrameWatch(QQuickWindow &window, About &about) : QObject(&window), m_about(about)
{
    window.installEventFilter(this);
    // These signals come from the thread that draws.
    connect(
        &window, &QQuickWindow::afterSynchronizing, this,
        [this] { m_frames.frameBegan(std::chrono::steady_clock::now()); }, Qt::DirectConnection);
    connect(
        &window, &QQuickWindow::frameSwapped, this, [this] { showFrame(); }, Qt::DirectConnection);
}

bool FrameWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && !isModifier(static_cast<QKeyEvent *>(event)->key())) {
        m_frames.pressed(std::chrono::steady_clock::now());
        QMetaObject::invokeMethod(
            this, [this] { m_frames.handled(std::chrono::steady_clock::now()); },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void FrameWatch::showFrame()
{
    if (const auto time = m_frames.frameShown(std::chrono::steady_clock::now()))
        QMetaObject::invokeMethod(
            &m_about, [&about = m_about, time = *time] { about.add(time); }, Qt::QueuedConnection);
}
