#include "screens/documents/view/DocumentCanvas.h"

#include "screens/documents/view/DocumentTiles.h"
#include "screens/documents/view/Viewport.h"

#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace {

constexpr double everywhere = 1e9;
/// The number of characters that are laid out in one idle slice, a few milliseconds of work.
constexpr int charactersPerSlice = 4000;

double bounded(double value, double least, double most, double fallback)
{
    return std::isfinite(value) ? std::clamp(value, least, most) : fallback;
}

} // namespace

DocumentCanvas::DocumentCanvas(QQuickItem *parent) : QQuickItem(parent), m_media(*this)
{
    setFlag(ItemHasContents);
    m_idle.setSingleShot(true);
    m_idle.setInterval(0);
    connect(&m_idle, &QTimer::timeout, this, &DocumentCanvas::makeMoreExact);
    connect(&m_media, &MediaItems::resized, this, &DocumentCanvas::resizeMedia);
}

DocumentCanvas::~DocumentCanvas() = default;

void DocumentCanvas::setNode(const ADFNode &node)
{
    if (m_node == node)
        return;
    m_node = node;
    forgetBlocks();
    Q_EMIT nodeChanged();
}

void DocumentCanvas::setSubject(const QString &subject)
{
    if (std::exchange(m_subject, subject) == subject)
        return;
    m_options.open.clear();
    forgetBlocks();
    Q_EMIT subjectChanged();
}

void DocumentCanvas::setSpacing(double spacing)
{
    constexpr double most = 200;
    const double allowed = bounded(spacing, 0, most, 0);
    if (std::exchange(m_options.spacing, allowed) == allowed)
        return;
    forgetBlocks();
    Q_EMIT spacingChanged();
}

void DocumentCanvas::setFontSize(double size)
{
    constexpr double least = 6;
    constexpr double most = 100;
    constexpr double usual = 14;
    const double allowed = bounded(size, least, most, usual);
    if (std::exchange(m_options.fontSize, allowed) == allowed)
        return;
    forgetBlocks();
    Q_EMIT fontSizeChanged();
}

void DocumentCanvas::setCurrentUserID(const QString &id)
{
    if (currentUserID() == id)
        return;
    m_options.context.meID = id.isEmpty() ? std::nullopt : std::optional(id);
    forgetBlocks();
    Q_EMIT currentUserIDChanged();
}

void DocumentCanvas::setLocaleName(const QString &name)
{
    if (localeName() == name)
        return;
    m_options.context.calendar.locale = QLocale(name);
    forgetBlocks();
    Q_EMIT calendarChanged();
}

void DocumentCanvas::setTimeZone(const QString &id)
{
    const QTimeZone zone(id.toLatin1());
    if (!zone.isValid() || zone == m_options.context.calendar.zone)
        return;
    m_options.context.calendar.zone = zone;
    forgetBlocks();
    Q_EMIT calendarChanged();
}

void DocumentCanvas::setStyle(DocumentStyle *style)
{
    if (m_style == style)
        return;
    if (m_style)
        m_style->disconnect(this);
    m_style = style;
    if (style) {
        connect(style, &DocumentStyle::changed, this, [this] {
            if (m_shape)
                m_shape->forgetLines();
            redraw();
        });
        connect(style, &DocumentStyle::fontsChanged, this, &DocumentCanvas::forgetBlocks);
    }
    forgetBlocks();
    Q_EMIT styleChanged();
}

void DocumentCanvas::setMediaDelegate(QQmlComponent *delegate)
{
    if (m_media.delegate() == delegate)
        return;
    m_media.setDelegate(delegate);
    forgetBlocks();
    Q_EMIT mediaDelegateChanged();
}

void DocumentCanvas::toggleExpand(int expand)
{
    const auto key = m_shape->blocks().expands[size_t(expand)].key;
    if (!m_options.open.remove(key))
        m_options.open.insert(key);
    forgetBlocks();
}

/// The document is divided into blocks anew before the next frame.
void DocumentCanvas::forgetBlocks()
{
    if (m_shape)
        forgetPlaces();
    m_shape.reset();
    m_media.clear();
    m_idle.stop();
    redraw();
    polish();
}

void DocumentCanvas::makeBlocks()
{
    m_options.textScale = m_style->textScale();
    m_shape = std::make_unique<DocumentShape>(DocumentBlocks::of(m_node, m_options), *m_style,
                                              m_options.fontSize);
    if (!m_media.delegate()) {
        for (int i = 0; i < int(m_shape->blocks().media.size()); ++i)
            m_shape->setMediaHeight(i, 0);
    }
    m_shape->setWidth(width());
    m_visible = {};
    m_idle.start();
    Q_EMIT blocksChanged();
}

bool DocumentCanvas::scrollSideways(int scroller, double offset)
{
    const double before = m_shape->offset(scroller);
    m_shape->setOffset(scroller, offset);
    if (m_shape->offset(scroller) == before)
        return false;
    const auto box = m_shape->scroller(scroller).viewport;
    redraw(box.top(), box.bottom());
    placeMedia();
    return true;
}

void DocumentCanvas::redraw(double top, double bottom)
{
    const bool isClean = m_dirtyTop >= m_dirtyBottom;
    m_dirtyTop = isClean ? top - overhang : std::min(m_dirtyTop, top - overhang);
    m_dirtyBottom = isClean ? bottom + overhang : std::max(m_dirtyBottom, bottom + overhang);
    update();
}

void DocumentCanvas::redraw()
{
    redraw(-everywhere, everywhere);
}

void DocumentCanvas::componentComplete()
{
    QQuickItem::componentComplete();
    polish();
}

void DocumentCanvas::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange) {
        followWindow();
    } else if (change == ItemDevicePixelRatioHasChanged) {
        redraw();
    } else if (change == ItemVisibleHasChanged && data.boolValue) {
        polish();
    }
}

/// What is in sight can change with any item around this one, so it is compared before each frame.
void DocumentCanvas::followWindow()
{
    disconnect(m_frames);
    if (window())
        m_frames =
            connect(window(), &QQuickWindow::afterAnimating, this, &DocumentCanvas::followSight);
    polish();
}

void DocumentCanvas::geometryChange(const QRectF &geometry, const QRectF &old)
{
    QQuickItem::geometryChange(geometry, old);
    if (geometry.width() != old.width())
        polish();
}

void DocumentCanvas::updatePolish()
{
    if (!m_style || !isComponentComplete() || width() <= 0)
        return;
    if (!m_shape) {
        makeBlocks();
    } else if (m_shape->width() != width()) {
        m_shape->setWidth(width());
        m_visible = {};
        m_idle.start();
        redraw();
    }
    settle();
}

void DocumentCanvas::followSight()
{
    if (!m_shape)
        return;
    if (snap() != m_snap)
        update();
    if (visiblePart(*this) != m_visible)
        settle();
}

/// Makes exact what is in sight and a tile around it, which can be drawn as a whole.
void DocumentCanvas::settle()
{
    constexpr double margin = DocumentTiles::TileHeight + overhang;
    m_visible = visiblePart(*this);
    if (!m_visible.isEmpty()) {
        const int first = anchor();
        const double before =
            m_shape->flow(0).pieces.empty() ? 0 : m_shape->flow(0).pieces[size_t(first)].y;
        m_shape->makeExact(m_visible.top() - margin, m_visible.bottom() + margin);
        reportShift(first, before);
        const double screen = m_visible.height() + margin;
        m_shape->release(m_visible.top() - screen, m_visible.bottom() + screen);
        update();
    }
    placeMedia();
    publishHeight();
}

/// The first piece in sight, or 0.
int DocumentCanvas::anchor() const
{
    const auto last = std::ssize(m_shape->flow(0).pieces) - 1;
    return int(std::clamp<qsizetype>(m_shape->pieceAt(0, m_visible.top()), 0,
                                     std::max<qsizetype>(last, 0)));
}

void DocumentCanvas::reportShift(int anchor, double before)
{
    if (m_shape->flow(0).pieces.empty())
        return;
    const double distance = m_shape->flow(0).pieces[size_t(anchor)].y - before;
    if (distance == 0)
        return;
    redraw();
    publishHeight();
    Q_EMIT shifted(distance);
}

void DocumentCanvas::makeMoreExact()
{
    if (!m_shape || m_shape->flow(0).pieces.empty())
        return;
    const int first = anchor();
    const double before = m_shape->flow(0).pieces[size_t(first)].y;
    if (m_shape->makeSomeExact(charactersPerSlice)) {
        m_idle.start();
        reportShift(first, before);
        return;
    }
    publishHeight();
    placeMedia();
}

void DocumentCanvas::resizeMedia(int media, double height)
{
    if (!m_shape || m_shape->mediaHeight(media) == height)
        return;
    const int first = anchor();
    const double before = m_shape->flow(0).pieces[size_t(first)].y;
    m_shape->setMediaHeight(media, height);
    reportShift(first, before);
    redraw();
    polish();
}

void DocumentCanvas::publishHeight()
{
    setImplicitHeight(std::ceil(m_shape->height()));
}

void DocumentCanvas::placeMedia()
{
    if (m_shape)
        m_media.follow(*m_shape, m_visible);
}

/// The distance to whole device pixels.
QPointF DocumentCanvas::snap() const
{
    const double scale = window() ? window()->effectiveDevicePixelRatio() : 1;
    const QPointF place = mapToScene({}) * scale;
    return QPointF(std::round(place.x()) - place.x(), std::round(place.y()) - place.y()) / scale;
}

QSGNode *DocumentCanvas::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    auto *tiles =
        old ? static_cast<DocumentTiles *>(old) : std::make_unique<DocumentTiles>().release();
    if (m_dirtyTop < m_dirtyBottom)
        tiles->invalidate(m_dirtyTop, m_dirtyBottom);
    m_dirtyTop = m_dirtyBottom = 0;
    m_snap = snap();
    const double scale = window()->effectiveDevicePixelRatio();
    const double height = m_shape ? std::ceil(m_shape->height()) : 0;
    const DocumentTiles::View view{
        .whole = QRectF(-overhang, -overhang, width() + 2 * overhang, height + 2 * overhang),
        .visible = m_visible.isEmpty()
                       ? QRectF()
                       : m_visible.adjusted(-overhang, -overhang, overhang, overhang),
        .scale = scale,
        .snap = m_snap};
    const auto marks = m_shape ? this->marks() : DocumentMarks();
    tiles->show(window(), view, [&](QPainter &painter, const QRectF &box) {
        DocumentPainter(painter, *m_shape, marks, scale).paint(box);
    });
    return tiles;
}
