#include "screens/Bench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// A chip in a window of 600 by 400, whose popover of 290 by 120 opens beside it.
class PopoverTest : public testing::Test
{
protected:
    PopoverTest()
    {
        auto *root = m_bench.show(u"Item { property alias chip: chip; width: 600; height: 400\n"
                                  "GlassChip { id: chip; title: 'Statut'\n"
                                  "property alias panel: panel\n"
                                  "Item { id: panel; width: parent.width; height: 120 } } }"_s);
        m_chip = root->property("chip").value<QQuickItem *>();
    }
    void TearDown() override { EXPECT_EQ(m_bench.warnings(), ""); }

    void moveChip(QPointF place) { m_chip->setPosition(place); }
    void click()
    {
        const QPointF middle = m_chip->mapToScene({m_chip->width() / 2, m_chip->height() / 2});
        QTest::mouseClick(&m_bench.window(), Qt::LeftButton, {}, middle.toPoint());
    }
    void drawFrame() { m_bench.window().grabWindow(); }
    void setTitle(const QString &title) { m_chip->setProperty("title", title); }
    QQuickItem *panel() const { return m_chip->property("panel").value<QQuickItem *>(); }
    /// The area of the content in the window.
    QRectF area() const { return panel()->mapRectToScene(QRectF({}, panel()->size())); }
    /// Opens the popover, and returns its area once it has its full size.
    QRectF opened()
    {
        click();
        const auto isFull = [this] { return panel()->mapRectToScene({0, 0, 1, 1}).width() == 1; };
        EXPECT_TRUE(m_chip->property("isPresented").toBool() && QTest::qWaitFor(isFull));
        return area();
    }

private:
    Bench m_bench;
    QQuickItem *m_chip = nullptr;
};

TEST_F(PopoverTest, KeepsItsSizeIfItsChipMovesAndGrowsWhileItIsOpen)
{
    const QSizeF size(290, 120);
    const QRectF window(0, 0, 600, 400);
    EXPECT_EQ(opened().size(), size);
    for (const QPointF place : {QPointF(450, 0), QPointF(0, 350), QPointF(450, 350)}) {
        moveChip(place);
        setTitle(u"En cours, à "_s + QString::number(place.x() + place.y()));
        drawFrame();
        EXPECT_EQ(area().size(), size) << "at " << place.x() << ", " << place.y();
        EXPECT_TRUE(window.contains(area())) << "at " << place.x() << ", " << place.y();
    }
}
