#include "shell/StatusIcons.h"

#include "screens/kit/painters/GlyphPainter.h"
#include "screens/kit/painters/StatusPainter.h"
#include "screens/theme/IdentityColors.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A square of `side` logical pixels, for screens with one to three device pixels per logical pixel.
QIcon drawn(qreal side, const std::function<void(QPainter &)> &paint)
{
    QIcon icon;
    for (const int scale : {1, 2, 3}) {
        QPixmap pixmap(QSize(qRound(side), qRound(side)) * scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        paint(painter);
        painter.end();
        pixmap.setDevicePixelRatio(scale);
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon drawnStatus(const IssueStatus &status, AccentChoice accent)
{
    constexpr qreal side = 14;
    const StatusDrawing drawing{status.category(), status.progress(),
                                IdentityColors::accent(accent)};
    return drawn(side, [&](QPainter &painter) { paintStatusIcon(painter, drawing, side); });
}

} // namespace

QIcon statusMenuIcon(const IssueStatus &status, AccentChoice accent)
{
    static QHash<QString, QIcon> cache;
    const QString key =
        u"%1-%2-%3"_s.arg(int(status.category())).arg(status.progress()).arg(int(accent));
    const auto known = cache.constFind(key);
    return known != cache.constEnd() ? *known : *cache.insert(key, drawnStatus(status, accent));
}

QIcon statusItemIcon()
{
    constexpr qreal side = 22;
    return drawn(
        side, [](QPainter &painter) { paintAppGlyph(painter, side, painter.transform().m11()); });
}
