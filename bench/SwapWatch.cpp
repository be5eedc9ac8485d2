#include "SwapWatch.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QSGRendererInterface>
#include <QThread>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

QString graphics(QSGRendererInterface::GraphicsApi api)
{
    if (api == QSGRendererInterface::Software)
        return u"software"_s;
    if (auto *context = QOpenGLContext::currentContext()) {
        const auto *name = context->functions()->glGetString(GL_RENDERER);
        return u"OpenGL on "_s + QString::fromLatin1(reinterpret_cast<const char *>(name));
    }
    return u"graphics interface "_s + QString::number(int(api));
}

} // namespace

qint64 monotonicNow()
{
    return std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1);
}

SwapWatch::SwapWatch(QQuickWindow &window, std::function<bool()> counts)
    : m_counts(std::move(counts))
{
    const auto synchronized = [this, &window] {
        if (m_renderer.isEmpty())
            describe(window);
        m_isCounted = m_counts();
    };
    const auto handedOver = [this] { Q_EMIT swapped(monotonicNow(), m_isCounted); };
    connect(&window, &QQuickWindow::afterSynchronizing, this, synchronized, Qt::DirectConnection);
    connect(&window, &QQuickWindow::frameSwapped, this, handedOver, Qt::DirectConnection);
}

void SwapWatch::describe(const QQuickWindow &window)
{
    const bool isThreaded = QThread::currentThread() != thread();
    m_renderer = graphics(window.rendererInterface()->graphicsApi()) +
                 (isThreaded ? u", threaded loop"_s : u", basic loop"_s);
}
