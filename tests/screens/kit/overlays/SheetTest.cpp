#include "screens/Bench.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class SheetTest : public testing::Test
{
protected:
    SheetTest()
    {
        holder = bench.show(u"Item { property alias sheet: sheet; property alias button: button; "
                            u"property alias inside: inside; "
                            "property alias body: body; width: 600; height: 400; "
                            "PushButton { id: button; text: 'Derrière'; focus: true } "
                            "Sheet { id: sheet; name: 'Nouveau ticket'; width: 300; "
                            "Item { id: body; width: sheet.width; height: 100; "
                            "InputField { id: inside; name: 'Titre'; focus: true } } } }"_s);
        EXPECT_NE(holder, nullptr) << bench.warnings();
    }

    QQuickItem *item(const char *name) { return holder->property(name).value<QQuickItem *>(); }
    QObject *sheet() { return holder->property("sheet").value<QObject *>(); }
    bool isOpen() { return sheet()->property("visible").toBool(); }
    void open()
    {
        QMetaObject::invokeMethod(sheet(), "open");
        ASSERT_TRUE(QTest::qWaitFor([this] { return sheet()->property("opened").toBool(); }));
    }

    Bench bench;
    QQuickItem *holder = nullptr;
};

TEST_F(SheetTest, StandsInTheMiddleALittleAboveTheHalf)
{
    open();
    EXPECT_EQ(item("body")->mapToScene({0, 0}), QPointF(150, 120));
    EXPECT_EQ(bench.warnings(), "");
}

TEST_F(SheetTest, TakesTheFocusAndEscapeGivesItBack)
{
    ASSERT_TRUE(item("button")->hasActiveFocus());
    open();
    EXPECT_TRUE(item("inside")->hasActiveFocus());
    QTest::keyClick(&bench.window(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_TRUE(item("button")->hasActiveFocus());
}

TEST_F(SheetTest, WhatLiesBehindIsOutOfReach)
{
    QSignalSpy clicked(item("button"), SIGNAL(clicked()));
    open();
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, {20, 15});
    EXPECT_EQ(clicked.count(), 0);
    EXPECT_TRUE(isOpen());
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&bench.window(), Qt::Key_Tab);
    EXPECT_FALSE(item("button")->hasActiveFocus());
}

TEST_F(SheetTest, IsADialogWithItsName)
{
    open();
    auto *known = Bench::accessible(item("body")->parentItem());
    ASSERT_NE(known, nullptr);
    EXPECT_EQ(known->role(), QAccessible::Dialog);
    EXPECT_EQ(known->text(QAccessible::Name), u"Nouveau ticket"_s);
}

TEST_F(SheetTest, GrowsWithWhatItHoldsAndStaysInTheWindow)
{
    open();
    item("body")->setHeight(200);
    EXPECT_TRUE(QTest::qWaitFor([this] { return sheet()->property("height").toReal() == 200; }));
    item("body")->setHeight(2000);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return sheet()->property("height").toReal() == 400 - 32; }));
    EXPECT_GE(sheet()->property("y").toReal(), 0);
}
