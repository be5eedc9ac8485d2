#include "screens/kit/overlays/MenuBench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The first text of an item that is drawn below another one.
QQuickItem *textBelow(QQuickItem *item, const QString &start)
{
    if (item->inherits("QQuickText") && item->property("text").toString().startsWith(start))
        return item;
    for (auto *child : item->childItems()) {
        if (auto *text = textBelow(child, start))
            return text;
    }
    return nullptr;
}

QString longTitle()
{
    QString title = u"Facturation"_s;
    while (title.size() < 250)
        title += u" et relances"_s;
    return title;
}

} // namespace

TEST(LongMenu, ALongTitleIsElidedAndItsHintShowsTheWholeText)
{
    MenuBench menu(MenuBench::rowsOf({u"Copier"_s, longTitle()}));
    EXPECT_EQ(menu.box().width(), 360);
    auto *title = textBelow(menu.row(1), u"Fact"_s);
    ASSERT_NE(title, nullptr);
    EXPECT_TRUE(title->property("truncated").toBool());
    EXPECT_LE(menu.boxOf(title).right(), menu.box().right());

    menu.press(Qt::Key_End);
    auto *overlay = menu.bench.window().property("_q_QQuickOverlay").value<QQuickItem *>();
    const auto hint = [&]() -> QQuickItem * {
        for (auto *layer : overlay->childItems()) {
            auto *text = layer->isVisible() ? textBelow(layer, longTitle()) : nullptr;
            if (text && menu.boxOf(text).top() > menu.boxOf(title).top())
                return layer;
        }
        return nullptr;
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return hint() != nullptr; }));
    menu.settle();
    EXPECT_TRUE(QRectF(0, 0, 600, 400).contains(menu.boxOf(hint()))) << "the hint has lines";
    EXPECT_FALSE(textBelow(hint(), longTitle())->property("truncated").toBool());
    EXPECT_EQ(menu.warnings(), "");
}

TEST(LongMenu, ATitleThatFitsHasNoHint)
{
    MenuBench menu(MenuBench::rowsOf({u"Copier"_s, u"Ouvrir dans une nouvelle fenêtre"_s}));
    EXPECT_LT(menu.box().width(), 360);
    EXPECT_FALSE(textBelow(menu.row(1), u"Ouv"_s)->property("truncated").toBool());
}

TEST(LongMenu, StaysInTheWindowAndSaysThatThereIsMore)
{
    MenuBench menu(MenuBench::rowsOf(MenuBench::numbered(202)));
    EXPECT_EQ(menu.box(), QRectF(20, 8, menu.box().width(), 384));
    EXPECT_FALSE(menu.sign(0)->isVisible()) << "nothing is above";
    EXPECT_TRUE(menu.sign(1)->isVisible());
    menu.press(Qt::Key_End);
    EXPECT_TRUE(menu.sign(0)->isVisible());
    EXPECT_FALSE(menu.sign(1)->isVisible()) << "nothing is below";
}

TEST(LongMenu, AMenuThatFitsHasNoSigns)
{
    MenuBench menu(MenuBench::rowsOf(MenuBench::numbered(5)));
    EXPECT_EQ(menu.box().height(), 5 * 26 + 10);
    EXPECT_FALSE(menu.sign(0)->isVisible());
    EXPECT_FALSE(menu.sign(1)->isVisible());
}

TEST(LongMenu, OnlyTheRowsInViewAreFilled)
{
    MenuBench menu(MenuBench::rowsOf(MenuBench::numbered(202)));
    int filled = 0;
    for (int i = 0; i < 202; ++i)
        filled += textBelow(menu.row(i), u"Entrée"_s) ? 1 : 0;
    EXPECT_GE(filled, 14);
    EXPECT_LE(filled, 16);
    menu.press(Qt::Key_End);
    EXPECT_NE(textBelow(menu.row(201), u"Entrée 202"_s), nullptr);
}

TEST(LongMenu, HomeEndAndThePageKeysMoveTheHighlightAndKeepItInView)
{
    MenuBench menu(MenuBench::rowsOf(MenuBench::numbered(202)));
    const auto isInView = [&] {
        return menu.view().contains(menu.boxOf(menu.row(menu.current())));
    };
    menu.press(Qt::Key_End);
    EXPECT_EQ(menu.highlighted(), u"Entrée 202"_s);
    EXPECT_TRUE(isInView());
    menu.press(Qt::Key_PageUp);
    EXPECT_EQ(menu.highlighted(), u"Entrée 190"_s);
    EXPECT_TRUE(isInView());
    menu.press(Qt::Key_Home);
    EXPECT_EQ(menu.highlighted(), u"Entrée 1"_s);
    EXPECT_TRUE(isInView());
    menu.press(Qt::Key_PageDown);
    EXPECT_EQ(menu.highlighted(), u"Entrée 13"_s);
    for (int i = 0; i < 40; ++i) {
        menu.press(Qt::Key_Down);
        ASSERT_TRUE(isInView()) << menu.highlighted().toStdString();
    }
    EXPECT_EQ(menu.highlighted(), u"Entrée 53"_s);
    EXPECT_EQ(menu.warnings(), "");
}

TEST(LongMenu, KeysPassOverDisabledHiddenAndSeparatorRows)
{
    MenuBench menu(u"PopupMenuItem { text: 'Un'; enabled: false } PopupMenuItem { text: 'Deux' } "
                   "PopupMenuSeparator {} PopupMenuItem { text: 'Trois'; visible: false; "
                   "height: visible ? implicitHeight : 0 } PopupMenuItem { text: 'Quatre' }"_s);
    menu.press(Qt::Key_Down);
    EXPECT_EQ(menu.highlighted(), u"Deux"_s);
    menu.press(Qt::Key_Down);
    EXPECT_EQ(menu.highlighted(), u"Quatre"_s);
    menu.press(Qt::Key_Home);
    EXPECT_EQ(menu.highlighted(), u"Deux"_s);
}

TEST(LongMenu, TheWheelScrollsToTheLastRowAndTheHighlightStaysInView)
{
    MenuBench menu(MenuBench::rowsOf(MenuBench::numbered(50)));
    menu.press(Qt::Key_Home);
    menu.wheel(menu.box().center(), -3);
    EXPECT_EQ(menu.offset(), 3 * 52);
    EXPECT_TRUE(menu.view().intersects(menu.boxOf(menu.row(menu.current()))));
    menu.wheel(menu.box().center(), -100);
    EXPECT_EQ(menu.offset(), 50 * 26 - 374) << "not beyond the last row";
    menu.wheel(menu.box().center(), 100);
    EXPECT_EQ(menu.offset(), 0);
    EXPECT_EQ(menu.warnings(), "");
}

TEST(LongMenu, ASignScrollsWhileThePointerRestsOnIt)
{
    MenuBench menu(MenuBench::rowsOf(MenuBench::numbered(50)));
    ManualAnimations time;
    menu.moveTo(menu.boxOf(menu.row(2)).center());
    menu.moveTo(menu.boxOf(menu.row(3)).center());
    menu.moveTo(menu.boxOf(menu.sign(1)).center());
    time.pass(0);
    time.pass(500);
    EXPECT_NEAR(menu.offset(), 200, 1) << "400 pixels per second";
    menu.moveTo({590, 390});
    const qreal left = menu.offset();
    time.pass(500);
    EXPECT_EQ(menu.offset(), left);
    menu.moveTo(menu.boxOf(menu.sign(0)).center());
    time.pass(0);
    time.pass(60000);
    EXPECT_EQ(menu.offset(), 0);
    EXPECT_EQ(menu.warnings(), "");
}

TEST(LongMenu, ASignThatAppearsBelowTheRestingPointerDoesNotScroll)
{
    MenuBench menu(MenuBench::rowsOf(MenuBench::numbered(50)));
    ManualAnimations time;
    menu.press(Qt::Key_Home);
    menu.moveTo(menu.boxOf(menu.row(0)).center());
    menu.press(Qt::Key_End);
    const qreal end = menu.offset();
    ASSERT_GT(end, 0);
    time.pass(0);
    time.pass(500);
    EXPECT_EQ(menu.offset(), end);
    EXPECT_EQ(menu.highlighted(), u"Entrée 50"_s);
    EXPECT_EQ(menu.warnings(), "");
}

TEST(LongMenu, ARowThatScrollsBelowTheRestingPointerDoesNotTakeTheHighlight)
{
    MenuBench menu(MenuBench::rowsOf(MenuBench::numbered(50)));
    menu.moveTo(menu.boxOf(menu.row(5)).center());
    ASSERT_EQ(menu.highlighted(), u"Entrée 6"_s);
    menu.press(Qt::Key_End);
    menu.settle();
    EXPECT_EQ(menu.highlighted(), u"Entrée 50"_s);
    menu.moveTo(menu.boxOf(menu.row(42)).center());
    EXPECT_EQ(menu.highlighted(), u"Entrée 43"_s) << "a pointer that moves takes it again";
}
