#include "shell/WindowMemory.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const auto sidebarKey = u"window.sidebarWidth"_s;
const auto inspectorKey = u"window.inspectorWidth"_s;
const auto frameKey = u"window.frame"_s;
const auto maximizedKey = u"window.maximized"_s;

int number(const Preferences &preferences, const QString &key, int otherwise)
{
    bool isNumber = false;
    const int value = preferences.text(key).value_or(QString()).toInt(&isNumber);
    return isNumber ? value : otherwise;
}

QString textOf(const QRect &frame)
{
    return u"%1 %2 %3 %4"_s.arg(frame.x()).arg(frame.y()).arg(frame.width()).arg(frame.height());
}

std::optional<QRect> frameOf(const QString &text)
{
    QList<int> numbers;
    for (const auto &word : text.split(u' ')) {
        bool isNumber = false;
        numbers += word.toInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    const bool isFrame = numbers.size() == 4 && numbers[2] > 0 && numbers[3] > 0;
    return isFrame ? std::optional(QRect(numbers[0], numbers[1], numbers[2], numbers[3]))
                   : std::nullopt;
}

qint64 area(const QRect &rect)
{
    return qint64(rect.width()) * rect.height();
}

} // namespace

std::optional<QRect> frameOnScreens(const QRect &frame, const QList<QRect> &screens)
{
    const auto best = std::ranges::max_element(
        screens, {}, [&](const QRect &screen) { return area(screen.intersected(frame)); });
    if (best == screens.end() || !best->intersects(frame))
        return std::nullopt;
    const QSize size = frame.size().boundedTo(best->size());
    const int x = std::clamp(frame.x(), best->x(), best->x() + best->width() - size.width());
    const int y = std::clamp(frame.y(), best->y(), best->y() + best->height() - size.height());
    return QRect(QPoint(x, y), size);
}

QSize sizeOnScreen(const QSize &usual, const QSize &room)
{
    constexpr QSize smallestMain(940, 580);
    // The real height of the title bar is known only after the window is shown. Few are higher than this.
    constexpr int titleBar = 40;
    const bool holdsTheProgram =
        room.width() >= smallestMain.width() && room.height() >= smallestMain.height();
    return holdsTheProgram ? usual.boundedTo(room - QSize(0, titleBar)) : usual;
}

WindowMemory::WindowMemory(Preferences &preferences, QObject *parent)
    : QObject(parent),
      m_preferences(preferences),
      m_sidebarWidth(boundedSidebar(number(preferences, sidebarKey, 240))),
      m_inspectorWidth(boundedInspector(number(preferences, inspectorKey, 500)))
{
}

void WindowMemory::setSidebarWidth(int width)
{
    if (std::exchange(m_sidebarWidth, boundedSidebar(width)) != m_sidebarWidth)
        Q_EMIT changed();
}

void WindowMemory::setInspectorWidth(int width)
{
    if (std::exchange(m_inspectorWidth, boundedInspector(width)) != m_inspectorWidth)
        Q_EMIT changed();
}

QVariantMap WindowMemory::initialProperties(const QList<QRect> &screens) const
{
    QVariantMap properties;
    const auto stored = frameOf(m_preferences.text(frameKey).value_or(QString()));
    if (const auto frame = stored ? frameOnScreens(*stored, screens) : std::nullopt) {
        properties = {{u"x"_s, frame->x()},
                      {u"y"_s, frame->y()},
                      {u"width"_s, frame->width()},
                      {u"height"_s, frame->height()}};
    }
    if (m_preferences.flag(maximizedKey).value_or(false))
        properties.insert(u"visibility"_s, int(QWindow::Maximized));
    return properties;
}

void WindowMemory::follow(QQuickWindow *window)
{
    m_window = window;
    for (const auto change :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
        connect(window, change, this, &WindowMemory::noteFrame);
    window->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::aboutToQuit, this, &WindowMemory::save);
    noteFrame();
}

bool WindowMemory::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Close)
        save();
    return false;
}

void WindowMemory::noteFrame()
{
    if (m_window && m_window->visibility() == QWindow::Windowed)
        m_frame = m_window->geometry();
}

void WindowMemory::save()
{
    m_preferences.setText(sidebarKey, QString::number(m_sidebarWidth));
    m_preferences.setText(inspectorKey, QString::number(m_inspectorWidth));
    if (!m_window || m_window->visibility() == QWindow::Hidden)
        return;
    if (!m_frame.isEmpty())
        m_preferences.setText(frameKey, textOf(m_frame));
    m_preferences.setFlag(maximizedKey, m_window->visibility() == QWindow::Maximized);
}
