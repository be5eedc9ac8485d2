#include "screens/kit/painters/BadgePainter.h"

#include "screens/kit/painters/LetterPainter.h"
#include "screens/kit/painters/SoftGradient.h"

#include <QPainter>
#include <QTextBoundaryFinder>

QString badgeLetter(const QString &projectName)
{
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, projectName);
    const auto end = characters.toNextBoundary();
    return end > 0 ? projectName.first(end).toUpper() : QString();
}

void paintProjectBadge(QPainter &painter, const QColor &color, const QString &letter, qreal size)
{
    const QRectF box(0, 0, size, size);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(softGradient(color, box));
    painter.drawRoundedRect(box, 0.28 * size, 0.28 * size);
    paintLetters(painter, letter, {0.58 * size, QFont::Bold}, size);
}
