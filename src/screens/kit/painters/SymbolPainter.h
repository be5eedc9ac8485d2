#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStringList>

class QPainter;

/// How heavy a symbol is drawn. Only symbols that are lines take another weight than regular; filled ones would clog.
enum class SymbolWeight { Regular, Medium, Semibold, Bold, Heavy };

/// A symbol by its name in assets/symbols.tsv, such as "chevron.right".
struct SymbolDrawing
{
    QString name;
    QColor color;
    SymbolWeight weight = SymbolWeight::Regular;
};

/// Every name that has a drawing, in order.
QStringList symbolNames();
/// The side of a symbol's square for the size of the font it stands beside, in logical pixels.
int symbolSide(qreal fontSize);
/// Draws a symbol whose square is `box`, with the optical corrections of those that look too small or too heavy; such a
/// symbol may leave the box by a tenth. An unknown name draws nothing.
void paintSymbol(QPainter &painter, const SymbolDrawing &symbol, const QRectF &box);
