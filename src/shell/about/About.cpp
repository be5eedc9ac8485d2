#include "shell/about/About.h"

#include "platform/ProcessFigures.h"
#include "shell/about/AboutTexts.h"
#include "shell/about/FrameWatch.h"

#include <QQmlEngine>
#include <QQuickWindow>

#include <algorithm>

About &About::shared()
{
    static About about(nullptr);
    return about;
}

About *About::create(QQmlEngine *, QJSEngine *)
{
    QQmlEngine::setObjectOwnership(&shared(), QQmlEngine::CppOwnership);
    return &shared();
}

void About::watch(QQuickWindow &window)
{
    // The window owns it.
    new FrameWatch(window, *this);
    if (m_start)
        return;
    const auto measureStart = [this] {
        if (const auto age = ProcessFigures::age())
            QMetaObject::invokeMethod(
                this, [this, age = *age] { setStart(age); }, Qt::QueuedConnection);
    };
    connect(&window, &QQuickWindow::frameSwapped, this, measureStart,
            Qt::ConnectionType(Qt::DirectConnection | Qt::SingleShotConnection));
}

void About::add(KeyFrames::Duration time)
{
    m_lastKey = time;
    m_slowestKey = std::max(m_slowestKey.value_or(time), time);
    Q_EMIT measured();
}

void About::setStart(KeyFrames::Duration start)
{
    if (m_start)
        return;
    m_start = start;
    Q_EMIT measured();
}

void About::setShown(bool isShown)
{
    if (isShown == m_isShown)
        return;
    m_isShown = isShown;
    Q_EMIT isShownChanged();
}

QString About::start() const
{
    return AboutTexts::time(m_start);
}

QString About::lastKey() const
{
    return AboutTexts::time(m_lastKey);
}

QString About::slowestKey() const
{
    return AboutTexts::time(m_slowestKey);
}

QString About::memory() const
{
    return AboutTexts::memory(ProcessFigures::residentBytes());
}

QString About::version(const QString &version, const QString &build) const
{
    return AboutTexts::version(version, build);
}
