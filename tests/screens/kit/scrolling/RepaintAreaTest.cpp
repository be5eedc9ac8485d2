#include "screens/kit/scrolling/RepaintArea.h"

#include "screens/Bench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Counts how often its node changes.
class CountedArea : public RepaintArea
{
public:
    int count = 0;

protected:
    QSGNode *updatePaintNode(QSGNode *former, UpdatePaintNodeData *data) override
    {
        ++count;
        return RepaintArea::updatePaintNode(former, data);
    }
};

} // namespace

/// An area above a page of 2,000 pixels, of which 400 are visible: red, and blue from 1,000 on.
class RepaintAreaTest : public testing::Test
{
protected:
    RepaintAreaTest()
    {
        m_page =
            m_bench.show(u"Flickable { width: 600; height: 400; contentHeight: 2000\n"
                         "Rectangle { width: 600; height: 1000; color: '#ff0000' }\n"
                         "Rectangle { y: 1000; width: 600; height: 1000; color: '#0000ff' } }"_s);
        area.setParentItem(m_bench.window().contentItem());
        area.setSize({600, 400});
        area.setView(m_page);
        frame();
    }
    ~RepaintAreaTest() override { EXPECT_EQ(m_bench.warnings(), ""); }

    void scrollTo(qreal y) { m_page->setProperty("contentY", y); }
    /// Draws a frame, and returns the colour in its middle.
    QColor frame() { return m_bench.window().grabWindow().pixelColor(300, 200); }
    /// Draws a frame, and tells whether the node of the area has changed in it.
    bool changesInNextFrame()
    {
        const int before = area.count;
        frame();
        return area.count > before;
    }

private:
    Bench m_bench;
    QQuickItem *m_page = nullptr;

protected:
    CountedArea area;
};

TEST_F(RepaintAreaTest, ChangesWithEachStepOfTheViewAndNotOtherwise)
{
    EXPECT_FALSE(changesInNextFrame());
    scrollTo(10);
    EXPECT_TRUE(changesInNextFrame());
    EXPECT_FALSE(changesInNextFrame());
    scrollTo(20);
    EXPECT_TRUE(changesInNextFrame());
}

TEST_F(RepaintAreaTest, ChangesInEachFrameWhileItemsMove)
{
    area.setAnimating(true);
    EXPECT_TRUE(changesInNextFrame());
    EXPECT_TRUE(changesInNextFrame());
    area.setAnimating(false);
    EXPECT_TRUE(changesInNextFrame()) << "the last step of the animation";
    EXPECT_FALSE(changesInNextFrame());
}

TEST_F(RepaintAreaTest, DrawsNothingItself)
{
    EXPECT_EQ(frame(), QColor(Qt::red));
    scrollTo(1200);
    EXPECT_EQ(frame(), QColor(Qt::blue));
}

TEST_F(RepaintAreaTest, LeavesItsWindowWhileItemsMove)
{
    area.setAnimating(true);
    area.setParentItem(nullptr);
    EXPECT_FALSE(changesInNextFrame());
}
