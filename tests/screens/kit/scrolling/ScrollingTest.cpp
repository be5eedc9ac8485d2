#include "screens/Bench.h"

#include <QAnimationDriver>
#include <QPointingDevice>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Lets animations advance only when the test says so.
class ManualDriver : public QAnimationDriver
{
public:
    ManualDriver() { install(); }
    ~ManualDriver() override { uninstall(); }
    qint64 elapsed() const override { return m_time; }
    void turn(int milliseconds)
    {
        constexpr int Frame = 16;
        for (int passed = 0; passed < milliseconds; passed += Frame) {
            // Animations register themselves in the event loop.
            QCoreApplication::processEvents();
            m_time += Frame;
            advanceAnimation();
        }
    }

private:
    qint64 m_time = 0;
};

QQuickItem *named(QQuickItem *root, const QString &name)
{
    if (root->objectName() == name)
        return root;
    for (auto *child : root->childItems()) {
        if (auto *found = named(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

/// A page of 40 lines of 50 pixels, 400 of which are visible, and a board of three columns, of which the first two are
/// visible. The first column scrolls, the second does not.
class Scrolled : public testing::Test
{
protected:
    void showPage(const QString &line = u"Rectangle { width: 600; height: 50; color: '#3366cc' }"_s)
    {
        show(u"Item { width: 600; height: 400\n"
             "ListView { id: v; objectName: 'page'; anchors.fill: parent; focus: true; model: 40\n"
             "delegate: %1 }\n"
             "Scrolling { view: v; ground: '#ffffff' } }"_s.arg(line));
        m_page = named(m_root, u"page"_s);
    }
    void showBoard()
    {
        show(u"Item { width: 600; height: 400\n"
             "Flickable { id: b; objectName: 'board'; anchors.fill: parent; contentWidth: 900; "
             "contentHeight: 400\n"
             "Row { Repeater { model: [40, 2, 40]\n"
             "Item { id: c; required property int modelData; width: 300; height: 400\n"
             "ListView { id: l; objectName: 'column'; y: 40; width: 300; height: 360; model: "
             "c.modelData\n"
             "delegate: Item { width: 300; height: 50 } }\n"
             "Scrolling { view: l; ground: '#ffffff'; passesOn: true } } } } }\n"
             "Scrolling { view: b; ground: '#ffffff'; isHorizontal: true } }"_s);
        m_board = named(m_root, u"board"_s);
        m_column = named(m_root, u"column"_s);
    }
    /// `delta` is positive towards the end of the content.
    void wheel(QPointF at, int delta, Qt::KeyboardModifiers modifiers = {}, QPoint pixels = {},
               quint64 pause = 20)
    {
        m_time += pause;
        QWheelEvent event(at, m_bench.window().mapToGlobal(at), -pixels, {0, -delta}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        event.setTimestamp(m_time);
        QCoreApplication::sendEvent(&m_bench.window(), &event);
    }
    void drag()
    {
        auto &window = m_bench.window();
        QTest::mousePress(&window, Qt::LeftButton, {}, {300, 350});
        for (int y = 340; y >= 100; y -= 20)
            QTest::mouseMove(&window, {300, y});
        QTest::mouseRelease(&window, Qt::LeftButton, {}, {300, 100});
    }
    static double y(QQuickItem *view) { return view->property("contentY").toDouble(); }
    static double x(QQuickItem *view) { return view->property("contentX").toDouble(); }
    QColor pixel(int px, int py) { return m_bench.window().grabWindow().pixelColor(px, py); }

    Bench m_bench;
    ManualDriver m_driver;
    QQuickItem *m_root = nullptr;
    QQuickItem *m_page = nullptr;
    QQuickItem *m_board = nullptr;
    QQuickItem *m_column = nullptr;

private:
    void show(const QString &qml)
    {
        m_root = m_bench.show(qml);
        ASSERT_TRUE(m_root) << m_bench.warnings();
        EXPECT_EQ(m_bench.warnings(), "");
    }

    quint64 m_time = 1000000;
};

TEST_F(Scrolled, ANotchOfTheWheelIsAConstantDistanceHoweverQuick)
{
    showPage();
    for (const int pause : {200, 50, 10}) {
        const double from = y(m_page);
        for (int notch = 0; notch < 5; ++notch) {
            wheel({300, 200}, 120, {}, {}, quint64(pause));
            m_driver.turn(pause);
        }
        m_driver.turn(1000);
        EXPECT_DOUBLE_EQ(y(m_page) - from, 5 * 72) << pause;
    }
}

TEST_F(Scrolled, WithReducedMotionTheWheelScrollsAtOnce)
{
    m_bench.setToken("motion", "reduced", true);
    showPage();
    wheel({300, 200}, 120);

    EXPECT_DOUBLE_EQ(y(m_page), 72);
    m_bench.setToken("motion", "reduced", false);
}

TEST_F(Scrolled, ATouchpadScrollsByItsPixelsAtOnce)
{
    showPage();
    wheel({300, 200}, 17, {}, {0, 33});

    EXPECT_DOUBLE_EQ(y(m_page), 33);
}

TEST_F(Scrolled, AReversalTakesEffectAtOnce)
{
    showPage();
    for (int notch = 0; notch < 10; ++notch)
        wheel({300, 200}, 120);
    m_driver.turn(32);
    const double turning = y(m_page);
    wheel({300, 200}, -120);
    m_driver.turn(32);
    EXPECT_LT(y(m_page), turning);
}

TEST_F(Scrolled, TheMouseDoesNotDragTheContentAndFingersDo)
{
    showPage();
    drag();
    EXPECT_DOUBLE_EQ(y(m_page), 0);

    auto *screen = QTest::createTouchDevice();
    QTest::touchEvent(&m_bench.window(), screen).press(0, {300, 350});
    // The window delivers the moves of fingers with its frames, and leaves out those that are overtaken.
    int place = 350;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        QTest::touchEvent(&m_bench.window(), screen).move(0, {300, --place});
        return y(m_page) > 50;
    }));
    QTest::touchEvent(&m_bench.window(), screen).release(0, {300, place});

    QTest::mousePress(&m_bench.window(), Qt::LeftButton, {}, {300, 350});
    QTest::mouseRelease(&m_bench.window(), Qt::LeftButton, {}, {300, 350});
    const double here = y(m_page);
    drag();
    EXPECT_DOUBLE_EQ(y(m_page), here);
}

TEST_F(Scrolled, PagesAndEndsAreReachedByKeys)
{
    showPage();
    QTest::keyClick(&m_bench.window(), Qt::Key_PageDown);
    m_driver.turn(1000);
    EXPECT_DOUBLE_EQ(y(m_page), 360);
    QTest::keyClick(&m_bench.window(), Qt::Key_End);
    m_driver.turn(2000);
    EXPECT_DOUBLE_EQ(y(m_page), 1600);
    QTest::keyClick(&m_bench.window(), Qt::Key_PageUp);
    m_driver.turn(1000);
    EXPECT_DOUBLE_EQ(y(m_page), 1240);
    QTest::keyClick(&m_bench.window(), Qt::Key_Home);
    m_driver.turn(2000);
    EXPECT_DOUBLE_EQ(y(m_page), 0);
}

TEST_F(Scrolled, AnEdgeFadesWhileThereIsMoreBeyondIt)
{
    m_bench.setToken("motion", "reduced", true);
    showPage();
    const QColor full = pixel(300, 200);
    EXPECT_EQ(pixel(300, 1), full) << "nothing is hidden above";
    EXPECT_GT(pixel(300, 398).lightness(), full.lightness() + 60);
    EXPECT_EQ(pixel(300, 380), full) << "16 pixels fade";

    wheel({300, 200}, 100 * 120);
    EXPECT_GT(pixel(300, 1).lightness(), full.lightness() + 60);
    EXPECT_EQ(pixel(300, 398), full) << "nothing is hidden below";
    m_bench.setToken("motion", "reduced", false);
}

TEST_F(Scrolled, TheScrollBarTellsScreenReadersThePosition)
{
    m_bench.setToken("motion", "reduced", true);
    showPage();
    QQuickItem *bar = nullptr;
    QList<QQuickItem *> left{m_root};
    while (!left.isEmpty() && !bar) {
        auto *item = left.takeFirst();
        left += item->childItems();
        bar = item->inherits("QQuickScrollBar") ? item : nullptr;
    }
    ASSERT_TRUE(bar);
    auto *value = Bench::accessible(bar)->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_DOUBLE_EQ(value->currentValue().toDouble(), 0);
    EXPECT_DOUBLE_EQ(value->maximumValue().toDouble(), 100);
    wheel({300, 200}, 0, {}, {0, 400});
    EXPECT_NEAR(value->currentValue().toDouble(), 25, 0.01);
    wheel({300, 200}, 100 * 120);
    EXPECT_NEAR(value->currentValue().toDouble(), 100, 0.01);
    m_bench.setToken("motion", "reduced", false);
}

TEST_F(Scrolled, TheBarOfAListThatEstimatesItsLengthIsDraggedWithoutALoop)
{
    showPage(u"Rectangle { required property int index; width: 600; height: 20 + index * 9 }"_s);
    auto &window = m_bench.window();
    for (const int place : {350, 40, 200, 390, 120}) {
        QTest::mouseClick(&window, Qt::LeftButton, {}, {595, place});
        QTest::mousePress(&window, Qt::LeftButton, {}, {595, place});
        QTest::mouseMove(&window, {595, place / 2});
        QTest::mouseRelease(&window, Qt::LeftButton, {}, {595, place / 2});
    }

    EXPECT_GT(y(m_page), m_page->property("originY").toDouble());
    EXPECT_EQ(m_bench.warnings(), "");
}

TEST_F(Scrolled, OverHeadsAndShortColumnsTheWheelScrollsTheBoardSideways)
{
    showBoard();
    wheel({100, 20}, 120);
    m_driver.turn(1000);
    EXPECT_DOUBLE_EQ(x(m_board), 72);
    wheel({400, 200}, 120, {}, {}, 1000);
    m_driver.turn(1000);
    EXPECT_DOUBLE_EQ(x(m_board), 144);
    EXPECT_DOUBLE_EQ(y(m_column), 0);
}

TEST_F(Scrolled, ShiftTurnsTheWheelSideways)
{
    showBoard();
    wheel({100, 200}, 120, Qt::ShiftModifier);
    m_driver.turn(1000);

    EXPECT_DOUBLE_EQ(x(m_board), 72);
    EXPECT_DOUBLE_EQ(y(m_column), 0);
}

TEST_F(Scrolled, AGestureThatReachesTheEndOfAColumnDoesNotGoOnSideways)
{
    showBoard();
    for (int notch = 0; notch < 60; ++notch) {
        wheel({100, 200}, 120);
        m_driver.turn(16);
    }
    m_driver.turn(1000);
    EXPECT_DOUBLE_EQ(y(m_column), 40 * 50 - 360);
    EXPECT_DOUBLE_EQ(x(m_board), 0);

    wheel({100, 200}, 120, {}, {}, 1000);
    m_driver.turn(1000);
    EXPECT_DOUBLE_EQ(x(m_board), 72) << "a new gesture at the end of the column";
}

TEST_F(Scrolled, AGestureThatScrollsTheBoardDoesNotEnterAColumnThatComesBelowThePointer)
{
    showBoard();
    for (int notch = 0; notch < 10; ++notch) {
        wheel({400, 200}, 120);
        m_driver.turn(64);
    }
    m_driver.turn(1000);
    EXPECT_DOUBLE_EQ(x(m_board), 300);
    QList<QQuickItem *> left{m_root};
    while (!left.isEmpty()) {
        auto *item = left.takeFirst();
        left += item->childItems();
        if (item->objectName() == u"column")
            EXPECT_DOUBLE_EQ(y(item), 0);
    }
}
