#include "screens/Bench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A page of 300 x 200 at the top of the window, with a button of this height at 20, 20.
class HintPlace : public testing::Test
{
protected:
    /// The box of the hint of the button, in the coordinates of the window.
    QRectF hintOf(int height)
    {
        auto *screen = m_bench.show(
            u"Item { width: 300; height: 400; Flickable { width: 300; height: 200; clip: true; "
            "contentHeight: 900; FocusableItem { x: 20; y: 20; width: 260; height: %1; "
            "accessibleName: 'Image'; hint: 'Un indice' } } }"_s.arg(height));
        EXPECT_NE(screen, nullptr) << m_bench.warnings();
        QTest::mouseMove(&m_bench.window(), {290, 390});
        QTest::mouseMove(&m_bench.window(), {100, 40});
        const QQuickItem *bubble = nullptr;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            const auto *overlay =
                m_bench.window().property("_q_QQuickOverlay").value<QQuickItem *>();
            bubble = overlay ? overlay->childItems().value(0) : nullptr;
            return bubble && bubble->opacity() == 1;
        }));
        return bubble ? bubble->mapRectToScene(bubble->boundingRect()) : QRectF();
    }

    Bench m_bench;
};

} // namespace

TEST_F(HintPlace, IsBelowWhatEndsInSight)
{
    EXPECT_EQ(hintOf(100).top(), 20 + 100 + 6);
}

TEST_F(HintPlace, IsOnThePageIfItsItemEndsBelowThePage)
{
    EXPECT_EQ(hintOf(600).bottom(), 200 - 6);
}

TEST_F(HintPlace, IsGivenUpWithTheWindowThatClosesBeforeIt)
{
    auto *screen = m_bench.show(
        u"Item { HintTip { objectName: 'hint'; shown: true; text: 'Un indice'; delay: 20 } }"_s);
    ASSERT_NE(screen, nullptr) << m_bench.warnings();
    const auto *hint = screen->findChild<QQuickItem *>(u"hint"_s);
    ASSERT_TRUE(hint->property("item").value<QObject *>()) << "the hint waits for its delay";

    screen->setParentItem(nullptr);

    EXPECT_FALSE(hint->property("item").value<QObject *>());
    EXPECT_EQ(m_bench.warnings(), "");
}
