#include "screens/Bench.h"
#include "screens/kit/painters/ChipPainter.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What the painter draws on the background of the bench, as a chip of this size without text.
QImage expected(const QImage &window, QSizeF size, const std::function<void(QPainter &)> &paint)
{
    const qreal scale = window.devicePixelRatio();
    QImage image((size * scale).toSize(), QImage::Format_RGB32);
    image.fill(window.pixelColor(window.width() - 1, window.height() - 1));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    paint(painter);
    return image;
}

/// The largest difference of a channel before the text, between the picture and what is in the window at (0, 0).
int difference(const QImage &window, const QImage &picture, int textStart)
{
    int largest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < textStart * window.devicePixelRatio(); ++x) {
            const QColor a = window.pixelColor(x, y);
            const QColor b = picture.pixelColor(x, y);
            largest = std::max({largest, std::abs(a.red() - b.red()),
                                std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
        }
    }
    return largest;
}

} // namespace

TEST(Chips, ALabelIsDrawnAsOnRowsAndCards)
{
    Bench bench;
    auto *chip = bench.show(u"LabelChip { name: 'ios' }"_s);
    ASSERT_NE(chip, nullptr) << bench.warnings();
    const QImage window = bench.window().grabWindow();
    const QColor outline = bench.token("theme", "chipOutline").value<QColor>();
    const QColor dot = chip->property("ink").value<QColor>();
    const QImage picture = expected(window, chip->size(), [&](QPainter &painter) {
        paintLabelChip(painter, chip->size(), outline, dot);
    });

    EXPECT_LE(difference(window, picture, ChipLayout::labelText - 1), 2);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Chips, ADueDateIsDrawnAsOnRowsAndCards)
{
    Bench bench;
    auto *badge = bench.show(u"DueBadge { text: 'Hier' }"_s);
    ASSERT_NE(badge, nullptr) << bench.warnings();
    const QImage window = bench.window().grabWindow();
    const QColor outline = bench.token("theme", "chipOutline").value<QColor>();
    const QColor ink = bench.token("theme", "text2").value<QColor>();
    const QImage picture = expected(window, badge->size(), [&](QPainter &painter) {
        paintDueBadge(painter, badge->size(), outline, ink);
    });

    EXPECT_LE(difference(window, picture, ChipLayout::dueText - 1), 2);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Chips, ATallDueDateIsACapsuleToo)
{
    Bench bench;
    const auto *badge = bench.show(u"DueBadge { text: 'Hier'; implicitHeight: 28 }"_s);
    ASSERT_NE(badge, nullptr) << bench.warnings();
    const QImage window = bench.window().grabWindow();
    const int scale = qRound(window.devicePixelRatio());
    const QColor ground = window.pixelColor(window.width() - 1, window.height() - 1);

    EXPECT_NE(window.pixelColor(30 * scale, 0), ground);
    EXPECT_NE(window.pixelColor(30 * scale, 28 * scale - 1), ground);
    EXPECT_EQ(window.pixelColor(0, 0), ground);
}

TEST(Chips, ADueDateWithoutItsTextHasTheWidthOfItsColumn)
{
    Bench bench;
    const auto *badge = bench.show(u"DueBadge { text: 'Hier'; compact: true }"_s);
    ASSERT_NE(badge, nullptr) << bench.warnings();
    EXPECT_EQ(badge->implicitWidth(), Metrics::rowDueCompact);
}
