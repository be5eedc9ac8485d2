#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

class MenuBar : public WindowFixture
{
protected:
    MenuBar()
    {
        serve({u"MOB-1"_s});
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        press(Qt::Key_Down);
    }

    bool isShown() { return !spokenIn(window(), QAccessible::MenuBar).isEmpty(); }
    bool comes(bool shown)
    {
        return QTest::qWaitFor([&] { return isShown() == shown; });
    }
    bool offers(const QString &text)
    {
        return QTest::qWaitFor(
            [&] { return !spokenIn(window(), QAccessible::MenuItem, text).isEmpty(); });
    }
};

TEST_F(MenuBar, F10ShowsItWithItsFirstMenuAndHidesItAgain)
{
    EXPECT_FALSE(isShown());
    press(Qt::Key_F10);
    EXPECT_TRUE(comes(true));
    EXPECT_TRUE(offers(u"Réglages…"_s));
    press(Qt::Key_Escape);
    EXPECT_TRUE(comes(false));
}

TEST_F(MenuBar, ATapOfAltShowsIt)
{
    QTest::keyPress(&window(), Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(&window(), Qt::Key_Alt);
    EXPECT_TRUE(comes(true));
}

TEST_F(MenuBar, AltInAShortcutDoesNot)
{
    QTest::keyPress(&window(), Qt::Key_Alt, Qt::AltModifier);
    press(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    QTest::keyRelease(&window(), Qt::Key_Alt);
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(store().showInspector());
}

TEST_F(MenuBar, TheArrowsWalkTheMenusAndReturnChoosesAndTheFocusReturns)
{
    auto *before = window().activeFocusItem();
    press(Qt::Key_F10);
    ASSERT_TRUE(offers(u"Réglages…"_s));
    press(Qt::Key_Right);
    ASSERT_TRUE(offers(u"Afficher l'aperçu"_s));
    press(Qt::Key_Up);
    press(Qt::Key_Return);

    EXPECT_TRUE(comes(false));
    EXPECT_TRUE(QTest::qWaitFor([&] { return store().showInspector(); }));
    EXPECT_EQ(window().activeFocusItem(), before);
}

TEST_F(MenuBar, AChosenPickerOpensForTheFocusedIssueAndGivesTheFocusBack)
{
    auto *before = window().activeFocusItem();
    press(Qt::Key_F10);
    press(Qt::Key_Right);
    ASSERT_TRUE(offers(u"Assigner à…"_s));
    click(spokenIn(window(), QAccessible::MenuItem, u"Assigner à…"_s).first());

    EXPECT_TRUE(QTest::qWaitFor([&] { return store().palette().has_value(); }));
    EXPECT_TRUE(comes(false));
    EXPECT_TRUE(window().activeFocusItem()->inherits("QQuickTextInput"));
    store().closePalette();
    EXPECT_EQ(window().activeFocusItem(), before);
}

TEST_F(MenuBar, TheAppearanceIsChosenInItsMenu)
{
    press(Qt::Key_F10);
    press(Qt::Key_Right);
    ASSERT_TRUE(offers(u"Assigner à…"_s));
    press(Qt::Key_Right);
    ASSERT_TRUE(offers(u"Apparence"_s));
}

TEST_F(MenuBar, ItTakesThePlaceOfAnOpenPicker)
{
    auto *before = window().activeFocusItem();
    click(find(QAccessible::Button, u"Statut :"_s));
    await(QAccessible::EditableText, u"Statut…"_s);
    press(Qt::Key_F10);
    ASSERT_TRUE(offers(u"Réglages…"_s));

    EXPECT_TRUE(isGone(QAccessible::EditableText, u"Statut…"_s));
    press(Qt::Key_Escape);
    EXPECT_TRUE(comes(false));
    EXPECT_EQ(window().activeFocusItem(), before);
}

TEST_F(MenuBar, ItTakesThePlaceOfThePalette)
{
    auto *before = window().activeFocusItem();
    press(Qt::Key_K, Qt::ControlModifier);
    ASSERT_TRUE(store().palette());
    press(Qt::Key_F10);
    ASSERT_TRUE(offers(u"Réglages…"_s));
    EXPECT_FALSE(store().palette());

    press(Qt::Key_F10);
    EXPECT_TRUE(comes(false));
    EXPECT_EQ(window().activeFocusItem(), before);
    press(Qt::Key_X);
    EXPECT_EQ(store().checkedCount(), 1);
}

TEST_F(MenuBar, ThePaletteTakesItsPlace)
{
    auto *before = window().activeFocusItem();
    press(Qt::Key_F10);
    ASSERT_TRUE(offers(u"Réglages…"_s));
    press(Qt::Key_K, Qt::ControlModifier);

    EXPECT_TRUE(comes(false));
    ASSERT_TRUE(store().palette());
    EXPECT_TRUE(window().activeFocusItem()->inherits("QQuickTextInput"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(store().palette());
    EXPECT_EQ(window().activeFocusItem(), before);
}
