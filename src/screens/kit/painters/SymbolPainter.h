#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStringList>

class QPainter;

/// The weight of a symbol. Only line symbols support weights other than regular, because filled symbols would lose
/// their details.
enum class SymbolWeight { Regular, Medium, Semibold, Bold, Heavy };

/// A symbol, selected by its name in assets/symbols.tsv, such as "chevron.right".
struct SymbolDrawing
{
    QString name;
    QColor color;
    SymbolWeight weight = SymbolWeight::Regular;
};

/// The names of all symbols, sorted.
QStringList symbolNames();
/// The side of a symbol's square for the font size of the text beside it, in logical pixels.
int symbolSide(qreal fontSize);
/// Draws a symbol whose square is `box`, with optical corrections for symbols that look too small or too heavy. A
/// corrected symbol may exceed the box by a tenth. An unknown name draws nothing.
void paintSymbol(QPainter &painter, const SymbolDrawing &symbol, const QRectF &box);
