#include "screens/Bench.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class FormSheetTest : public testing::Test
{
protected:
    FormSheetTest()
    {
        holder = bench.show(uR"(
            Item {
                id: root
                property alias sheet: sheet
                property alias first: first
                property alias last: last
                property alias done: done
                property alias chip: chip
                property int submissions: 0
                width: 520
                height: 480
                FormSheet {
                    id: sheet
                    name: "Nouveau ticket"
                    implicitWidth: 400
                    onSubmitted: root.submissions++
                    head: Item {
                        width: sheet.width
                        implicitHeight: 40
                        GlassChip { id: chip; title: "Projet"; Item { width: 290; height: 40 } }
                    }
                    foot: Item {
                        width: sheet.width
                        implicitHeight: 50
                        PushButton { id: done; text: "Créer" }
                    }
                    InputArea { id: first; width: sheet.width; height: 100; name: "Titre"; focus: true }
                    Item { width: 10; height: 100; y: 100 }
                    InputField { id: last; y: 200; width: sheet.width; name: "Fin" }
                }
            })"_s);
        EXPECT_NE(holder, nullptr) << bench.warnings();
        bench.window().resize(520, 480);
    }
    ~FormSheetTest() override { EXPECT_EQ(bench.warnings(), ""); }

    QQuickItem *item(const char *name) { return holder->property(name).value<QQuickItem *>(); }
    QObject *sheet() { return holder->property("sheet").value<QObject *>(); }
    void open()
    {
        QMetaObject::invokeMethod(sheet(), "open");
        ASSERT_TRUE(QTest::qWaitFor([this] { return sheet()->property("opened").toBool(); }));
    }
    int submissions() { return holder->property("submissions").toInt(); }
    QRectF box(const char *name)
    {
        auto *shown = item(name);
        return shown->mapRectToScene({0, 0, shown->width(), shown->height()});
    }

    Bench bench;
    QQuickItem *holder = nullptr;
};

TEST_F(FormSheetTest, ItIsAsHighAsItsParts)
{
    open();
    EXPECT_EQ(sheet()->property("height").toReal(), 40 + 200 + item("last")->height() + 50);
    EXPECT_TRUE(item("first")->hasActiveFocus());
}

TEST_F(FormSheetTest, InALowWindowTheFieldsScrollAndHeadAndFootStay)
{
    bench.window().resize(520, 280);
    open();
    EXPECT_EQ(sheet()->property("height").toReal(), 280 - 32);
    const QRectF head = box("chip");
    const QRectF foot = box("done");
    EXPECT_LE(foot.bottom(), 280);
    item("last")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box("last").bottom() <= foot.top(); }))
        << "the field with the focus is scrolled into view";
    EXPECT_EQ(box("chip"), head);
    EXPECT_EQ(box("done"), foot);
    item("first")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box("first").top() >= head.bottom(); }));
}

TEST_F(FormSheetTest, ReturnWithControlSubmitsFromEveryFieldAndInsertsNothing)
{
    open();
    QTest::keyClick(&bench.window(), Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(&bench.window(), Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(submissions(), 2);
    EXPECT_EQ(item("first")->property("text").toString(), QString());
    item("chip")->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&bench.window(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(submissions(), 3);
}

TEST_F(FormSheetTest, OtherReturnsBelongToTheField)
{
    open();
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    QTest::keyClick(&bench.window(), Qt::Key_Return, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(submissions(), 0);
    EXPECT_TRUE(item("first")->property("text").toString().startsWith(u'\n'));
}

TEST_F(FormSheetTest, WhatCannotBeSubmittedIsNotAndTheKeyStillInsertsNothing)
{
    sheet()->setProperty("canSubmit", false);
    open();
    QTest::keyClick(&bench.window(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(submissions(), 0);
    EXPECT_EQ(item("first")->property("text").toString(), QString());
}

TEST_F(FormSheetTest, TabWalksHeadFieldsAndFootInThisOrder)
{
    open();
    item("chip")->forceActiveFocus(Qt::TabFocusReason);
    QStringList names;
    for (int i = 0; i < 4; ++i) {
        names.append(Bench::accessible(bench.window().activeFocusItem())->text(QAccessible::Name));
        QTest::keyClick(&bench.window(), Qt::Key_Tab);
    }
    EXPECT_EQ(names, (QStringList{u"Projet"_s, u"Titre"_s, u"Fin"_s, u"Créer"_s}));
    EXPECT_TRUE(item("chip")->hasActiveFocus()) << "the focus stays in the sheet";
}

TEST_F(FormSheetTest, AListAboveItGetsTheKeyInItsPlace)
{
    open();
    item("chip")->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    ASSERT_TRUE(item("chip")->property("isPresented").toBool());
    QTest::keyClick(&bench.window(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(submissions(), 0);
}

TEST_F(FormSheetTest, ItFollowsAWindowThatIsResized)
{
    open();
    bench.window().resize(480, 260);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return sheet()->property("height").toReal() == 260 - 32; }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return box("done").bottom() <= 260; }));
    bench.window().resize(520, 480);
    EXPECT_TRUE(QTest::qWaitFor([this] { return sheet()->property("height").toReal() > 290; }));
}
