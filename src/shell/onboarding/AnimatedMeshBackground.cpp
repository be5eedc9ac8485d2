#include "shell/onboarding/AnimatedMeshBackground.h"

#include "shell/onboarding/MeshGradient.h"

#include <QDateTime>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRendererInterface>

using namespace std::chrono_literals;

namespace {

/// The time between two frames: a thirtieth of a second, rounded up, and twice that if the whole window is drawn by the
/// software renderer.
constexpr auto FramePeriod = 34ms;
constexpr auto SoftwareFramePeriod = 67ms;
constexpr QSize FieldSize(96, 64);
/// The time at which the still field is shown, in seconds.
constexpr double StillTime = 10;
/// The origin of time is the start of 2001 in UTC.
constexpr qint64 ReferenceMilliseconds = 978307200000;

} // namespace

AnimatedMeshBackground::AnimatedMeshBackground(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(&m_timer, &QTimer::timeout, this, &QQuickItem::update);
    connect(this, &QQuickItem::visibleChanged, this, &AnimatedMeshBackground::refreshMoving);
}

void AnimatedMeshBackground::setStill(bool still)
{
    if (m_still == still)
        return;
    m_still = still;
    Q_EMIT stillChanged();
    refreshMoving();
    update();
}

bool AnimatedMeshBackground::eventFilter(QObject *object, QEvent *event)
{
    // The window updates its exposed state when it handles the event, which is after this filter.
    if (event->type() == QEvent::Expose || event->type() == QEvent::Hide)
        QMetaObject::invokeMethod(this, &AnimatedMeshBackground::refreshMoving,
                                  Qt::QueuedConnection);
    return QQuickItem::eventFilter(object, event);
}

void AnimatedMeshBackground::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange)
        follow(data.window);
    QQuickItem::itemChange(change, data);
}

void AnimatedMeshBackground::follow(QQuickWindow *window)
{
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window) {
        m_window->installEventFilter(this);
        const auto api = m_window->rendererInterface()->graphicsApi();
        m_timer.setInterval(api == QSGRendererInterface::Software ? SoftwareFramePeriod
                                                                  : FramePeriod);
    }
    refreshMoving();
}

void AnimatedMeshBackground::refreshMoving()
{
    const bool isSeen = m_window && m_window->isExposed() && isVisible();
    const bool wasMoving = isMoving();
    if (isSeen && !m_still)
        m_timer.start();
    else
        m_timer.stop();
    if (wasMoving != isMoving())
        Q_EMIT movingChanged();
}

double AnimatedMeshBackground::time() const
{
    return m_still ? StillTime
                   : double(QDateTime::currentMSecsSinceEpoch() - ReferenceMilliseconds) / 1000;
}

QSGNode *AnimatedMeshBackground::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *field = static_cast<QSGImageNode *>(node);
    if (!field) {
        field = window()->createImageNode();
        field->setOwnsTexture(true);
        field->setFiltering(QSGTexture::Linear);
    }
    field->setTexture(window()->createTextureFromImage(MeshGradient::image(FieldSize, time()),
                                                       QQuickWindow::TextureIsOpaque));
    field->setRect(boundingRect());
    return field;
}
