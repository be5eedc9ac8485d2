#pragma once

#include <QFont>
#include <QString>

class QPainter;

/// The size (in logical pixels) and the weight of letters on a badge.
struct LetterStyle
{
    qreal pixels = 0;
    QFont::Weight weight = QFont::Normal;
};

/// Draws white letters as outlines, centred by their capital height in the square from (0, 0) to (size, size). Emoji,
/// which have no outlines, keep their colours.
void paintLetters(QPainter &painter, const QString &letters, const LetterStyle &style, qreal size);
