#include "screens/Pixels.h"
#include "screens/kit/painters/SymbolPainter.h"
#include "screens/kit/providers/SymbolProvider.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage symbolImage(const QString &name, SymbolWeight weight = SymbolWeight::Regular)
{
    return Pixels::painted(40, 1, [&](QPainter &painter) {
        paintSymbol(painter, {name, Qt::black, weight}, QRectF(4, 4, 32, 32));
    });
}

qreal inkOf(const QString &name, SymbolWeight weight = SymbolWeight::Regular)
{
    return Pixels::coveredArea(symbolImage(name, weight), 1);
}

QStringList tableLines()
{
    QFile table(projectFile(u"assets/symbols.tsv"_s));
    return table.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(table.readAll()).split(u'\n', Qt::SkipEmptyParts).sliced(1)
               : QStringList();
}

// The symbols that the screens use. The table must contain each of them.
const QStringList named =
    u"archivebox arrow.clockwise arrow.down.circle arrow.down.circle.fill "
    u"arrow.forward.circle.fill "
    "arrow.triangle.2.circlepath arrow.triangle.branch arrow.turn.down.right arrow.up "
    "arrow.up.forward.app arrow.up.right.square at bolt.fill bookmark.fill calendar "
    "calendar.badge.clock calendar.badge.exclamationmark chart.bar.fill checkmark checkmark.circle "
    "checkmark.circle.fill checkmark.seal checkmark.seal.fill checkmark.square.fill chevron.down "
    "chevron.left chevron.right circle.dashed circle.fill circle.lefthalf.filled clock "
    "doc.on.clipboard doc.on.doc doc.on.doc.fill exclamationmark.circle exclamationmark.triangle "
    "exclamationmark.triangle.fill folder gear gearshape globe hand.point.up.left "
    "info.circle.fill key.fill key.slash keyboard ladybug.fill line.3.horizontal.decrease "
    "line.3.horizontal.decrease.circle line.3.horizontal.decrease.circle.fill link list.bullet "
    "lock.fill macwindow.on.rectangle magnifyingglass moon.fill note.text number paintpalette "
    "paperclip pencil person.2.circle.fill person.crop.circle person.fill person.fill.checkmark "
    "person.slash person.wave.2.fill photo plus plus.circle plus.circle.fill "
    "rectangle.portrait.and.arrow.right rectangle.split.3x1 safari slider.horizontal.3 sparkles "
    "square square.and.arrow.down square.and.pencil square.dashed square.stack "
    "square.stack.3d.up.fill star star.slash sun.max.fill tag text.badge.checkmark trash tray.full "
    "xmark xmark.circle xmark.octagon.fill"_s.split(u' ');

} // namespace

TEST(Symbols, NoNameIsLeftOut)
{
    const auto names = symbolNames();
    for (const auto &name : named)
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
    EXPECT_EQ(names.size(), tableLines().size());
}

TEST(Symbols, EveryNameDrawsSomethingInsideItsSquare)
{
    for (const auto &name : symbolNames()) {
        const auto image = symbolImage(name);
        EXPECT_GT(Pixels::coveredArea(image, 1), 30) << name.toStdString();
        EXPECT_NEAR(Pixels::coveredInRow(image, 0, 0, 40, 1), 0, 0.01) << name.toStdString();
        EXPECT_NEAR(Pixels::coveredInColumn(image, 39, 0, 40, 1), 0, 0.01) << name.toStdString();
    }
}

TEST(Symbols, EveryFileIsUsed)
{
    QSet<QString> used;
    for (const auto &line : tableLines())
        used.insert(line.section(u'\t', 1, 1));
    const auto files = QDir(projectFile(u"assets/symbols"_s)).entryList({u"*.svg"_s});
    EXPECT_EQ(used, QSet<QString>(files.cbegin(), files.cend()));
}

TEST(Symbols, UnknownNameDrawsNothing)
{
    EXPECT_EQ(inkOf(u"no.such.symbol"_s), 0);
}

TEST(Symbols, SideIsOnePointFifteenTimesTheFontSizeRounded)
{
    const std::pair<int, int> sides[]{{8, 9},   {9, 10},  {10, 12}, {11, 13},
                                      {12, 14}, {13, 15}, {14, 16}, {16, 18}};
    for (const auto &[font, side] : sides)
        EXPECT_EQ(symbolSide(font), side) << font;
}

TEST(Symbols, HeavierLinesHaveMoreInk)
{
    for (const auto &name : {u"chevron.right"_s, u"xmark"_s, u"plus"_s, u"arrow.up"_s,
                             u"arrow.turn.down.right"_s, u"person.slash"_s, u"square.dashed"_s}) {
        qreal before = inkOf(name);
        for (const auto weight : {SymbolWeight::Medium, SymbolWeight::Semibold, SymbolWeight::Bold,
                                  SymbolWeight::Heavy}) {
            const qreal now = inkOf(name, weight);
            EXPECT_GT(now, before) << name.toStdString() << static_cast<int>(weight);
            before = now;
        }
    }
}

TEST(Symbols, FilledOnesIgnoreTheWeight)
{
    EXPECT_EQ(symbolImage(u"bolt.fill"_s, SymbolWeight::Bold), symbolImage(u"bolt.fill"_s));
}

TEST(Symbols, TickTakesOneStepLess)
{
    EXPECT_EQ(symbolImage(u"checkmark"_s, SymbolWeight::Medium), symbolImage(u"checkmark"_s));
    EXPECT_GT(inkOf(u"checkmark"_s, SymbolWeight::Bold), inkOf(u"checkmark"_s));
}

TEST(SymbolProvider, DrawsAtTheDevicePixelsAskedFor)
{
    SymbolProvider provider;
    QSize size;
    const auto image =
        provider.requestImage(u"chevron.right?f=13&w=bold&c=%23FF0000"_s, &size, QSize(38, 38));
    EXPECT_EQ(image.size(), QSize(38, 38));
    EXPECT_EQ(size, image.size());
    bool red = false;
    for (int x = 0; x < 38; ++x)
        red |= image.pixelColor(x, 19) == QColor(Qt::red);
    EXPECT_TRUE(red);
}

TEST(SymbolProvider, HasRoomRoundTheSquare)
{
    SymbolProvider provider;
    const auto image = provider.requestImage(u"at?f=13&c=%23000000"_s, nullptr, {});
    const int border = symbolBorder(15);
    EXPECT_EQ(image.width(), 15 + 2 * border);
    EXPECT_GE(2 * border, 0.12 * 15) << "room for the largest correction";
}
