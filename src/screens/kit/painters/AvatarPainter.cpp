#include "screens/kit/painters/AvatarPainter.h"

#include "screens/kit/painters/LetterPainter.h"
#include "screens/kit/painters/SoftGradient.h"
#include "screens/kit/painters/SymbolPainter.h"
#include "screens/theme/IdentityColors.h"

#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

void paintAvatar(QPainter &painter, const QColor &color, const QString &initials, qreal size)
{
    const QRectF box(0, 0, size, size);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(softGradient(color, box));
    painter.drawEllipse(box);
    paintLetters(painter, initials, {0.4 * size, QFont::DemiBold}, size);
}

void paintNobody(QPainter &painter, qreal size)
{
    constexpr qreal line = 1.2;
    QPen pen(IdentityColors::neutral(), line, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({2 / line, 2 / line});
    QPainterPath ring;
    ring.addEllipse(QRectF(line / 2, line / 2, size - line, size - line));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(ring);
    // The symbol has the font size 0.45 × size, not rounded to whole pixels.
    const qreal side = 0.45 * 1.15 * size;
    const QRectF box((size - side) / 2, (size - side) / 2, side, side);
    paintSymbol(painter, {u"person.fill"_s, IdentityColors::neutral()}, box);
}
