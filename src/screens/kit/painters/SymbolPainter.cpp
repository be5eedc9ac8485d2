#include "screens/kit/painters/SymbolPainter.h"

#include <QFile>
#include <QHash>
#include <QMap>
#include <QPainter>
#include <QSvgRenderer>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Correction
{
    qreal scale = 1;
    /// The downward offset, in units of the symbol's grid of 16.
    qreal shift = 0;
};

// The additional stroke width of the outline, in units of the grid, in the order of SymbolWeight.
constexpr std::array<qreal, 5> extraStroke{0, 0.3, 0.6, 1.15, 1.7};

QByteArray readAsset(const QString &path)
{
    QFile file(u":/velmora/"_s + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QMap<QString, QString> readTable()
{
    QMap<QString, QString> files;
    const auto lines =
        QString::fromUtf8(readAsset(u"symbols.tsv"_s)).split(u'\n', Qt::SkipEmptyParts);
    for (const auto &line : lines.sliced(1))
        files.insert(line.section(u'\t', 0, 0), line.section(u'\t', 1, 1));
    return files;
}

const QMap<QString, QString> &table()
{
    static const auto files = readTable();
    return files;
}

QString source(const QString &name)
{
    static QHash<QString, QString> sources;
    const auto known = sources.constFind(name);
    if (known != sources.cend())
        return *known;
    const auto file = table().value(name);
    const auto svg =
        file.isEmpty() ? QString() : QString::fromUtf8(readAsset(u"symbols/"_s + file));
    return *sources.insert(name, svg);
}

Correction correctionOf(const QString &name)
{
    if (name == "at"_L1)
        return {1.12, 0};
    if (name == "line.3.horizontal.decrease"_L1)
        return {1.2, 1};
    if (name == "bookmark.fill"_L1)
        return {0.92, 0};
    return {};
}

qreal strokeOf(const SymbolDrawing &symbol)
{
    if (symbol.name.endsWith(".fill"_L1))
        return 0;
    auto step = static_cast<size_t>(symbol.weight);
    // The drawing of this symbol is already heavy.
    if (symbol.name == "checkmark"_L1 && step > 0)
        --step;
    return extraStroke[step];
}

void widenStroke(QString &svg, qreal extra)
{
    constexpr auto attribute = "stroke-width=\""_L1;
    const auto from = svg.indexOf(attribute) + attribute.size();
    const auto to = svg.indexOf(u'"', from);
    const qreal width = svg.sliced(from, to - from).toDouble();
    svg.replace(from, to - from, QString::number(width + 0.8 * extra));
}

void addStroke(QString &svg, qreal extra)
{
    const auto root = svg.indexOf("<svg"_L1) + 4;
    svg.insert(
        root,
        u" stroke=\"currentColor\" stroke-linejoin=\"round\" stroke-width=\"%1\""_s.arg(extra));
}

QByteArray coloured(const SymbolDrawing &symbol)
{
    auto svg = source(symbol.name);
    const qreal extra = strokeOf(symbol);
    const auto root = svg.left(svg.indexOf(u'>'));
    if (extra > 0 && root.contains("stroke-width"_L1))
        widenStroke(svg, extra);
    else if (extra > 0)
        addStroke(svg, extra);
    svg.replace("currentColor"_L1, symbol.color.name(QColor::HexRgb));
    return svg.toUtf8();
}

QRectF corrected(const QRectF &box, const Correction &correction)
{
    const QSizeF size = box.size() * correction.scale;
    const QPointF shift(0, correction.shift * box.height() / 16);
    return {box.center() + shift - QPointF(size.width() / 2, size.height() / 2), size};
}

} // namespace

QStringList symbolNames()
{
    return table().keys();
}

int symbolSide(qreal fontSize)
{
    return static_cast<int>(std::round(1.15 * fontSize));
}

void paintSymbol(QPainter &painter, const SymbolDrawing &symbol, const QRectF &box)
{
    if (!table().contains(symbol.name))
        return;
    QSvgRenderer renderer(coloured(symbol));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(symbol.color.alphaF());
    renderer.render(&painter, corrected(box, correctionOf(symbol.name)));
    painter.setOpacity(1);
}
