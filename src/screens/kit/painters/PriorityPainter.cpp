#include "screens/kit/painters/PriorityPainter.h"

#include "screens/kit/painters/LetterPainter.h"
#include "screens/theme/IdentityColors.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int barCount = 3;
constexpr qreal barWidth = 0.22;
constexpr qreal barStep = barWidth + 0.1;
constexpr qreal barsWidth = 2 * barStep + barWidth;

int filledBars(PriorityLevel level)
{
    switch (level) {
    case PriorityLevel::High:
        return 3;
    case PriorityLevel::Medium:
        return 2;
    case PriorityLevel::Low:
        return 1;
    case PriorityLevel::Urgent:
    case PriorityLevel::None:
        break;
    }
    return 0;
}

qreal barLeft(int bar, qreal size)
{
    return (size - barsWidth * size) / 2 + bar * barStep * size;
}

void paintUrgent(QPainter &painter, qreal size)
{
    painter.setBrush(IdentityColors::urgent());
    painter.drawRoundedRect(QRectF(0, 0, size, size), 0.24 * size, 0.24 * size);
    paintLetters(painter, u"!"_s, {0.78 * size, QFont::Black}, size);
}

void paintBars(QPainter &painter, int filled, const QColor &color, qreal size)
{
    const qreal baseline = 0.97 * size;
    painter.setBrush(color);
    for (int bar = 0; bar < barCount; ++bar) {
        const qreal height = size * (0.28 * bar + 0.38);
        painter.setOpacity(bar < filled ? 0.82 : 0.2);
        painter.drawRoundedRect(
            QRectF(barLeft(bar, size), baseline - height, barWidth * size, height), 0.07 * size,
            0.07 * size);
    }
    painter.setOpacity(1);
}

void paintDashes(QPainter &painter, const QColor &color, qreal size)
{
    const qreal height = 0.12 * size;
    painter.setBrush(color);
    for (int bar = 0; bar < barCount; ++bar) {
        painter.drawRoundedRect(
            QRectF(barLeft(bar, size), (size - height) / 2, barWidth * size, height), height / 2,
            height / 2);
    }
}

} // namespace

void paintPriorityIcon(QPainter &painter, PriorityLevel level, const QColor &tint, qreal size)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (level == PriorityLevel::Urgent)
        paintUrgent(painter, size);
    else if (level == PriorityLevel::None)
        paintDashes(painter, tint, size);
    else
        paintBars(painter, filledBars(level), tint, size);
}
