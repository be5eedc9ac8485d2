#include "screens/Bench.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString menuPicker =
    u"MenuPicker { name: 'Regrouper par'; choices: ['Statut', 'Assigné', 'Aucun']; current: 1; focus: true }"_s;

QPoint middle(const QQuickItem *item)
{
    return item->mapToScene(item->boundingRect().center()).toPoint();
}

QAccessibleInterface *accessible(QQuickItem *item)
{
    return Bench::accessible(item);
}

void doAction(QQuickItem *item, const QString &action)
{
    accessible(item)->actionInterface()->doAction(action);
}

} // namespace

TEST(MenuPicker, SaysWhatItChoosesAndWhatIsChosen)
{
    Bench bench;
    auto *picker = bench.show(menuPicker);
    ASSERT_NE(picker, nullptr) << bench.warnings();
    EXPECT_EQ(accessible(picker)->text(QAccessible::Name), u"Regrouper par"_s);
    EXPECT_EQ(accessible(picker)->text(QAccessible::Description), u"Assigné"_s);
    EXPECT_EQ(accessible(picker)->role(), QAccessible::ComboBox);
    EXPECT_TRUE(accessible(picker)->state().focused);
    EXPECT_DOUBLE_EQ(picker->implicitHeight(), 26);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(MenuPicker, OpensWithTheHighlightOnTheCurrentChoiceAndReturnChoosesAnother)
{
    Bench bench;
    auto *picker = bench.show(menuPicker);
    QSignalSpy chosen(picker, SIGNAL(chosen(int)));
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    ASSERT_TRUE(picker->property("opened").toBool());
    QTest::keyClick(&bench.window(), Qt::Key_Down);
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.first().first().toInt(), 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picker->property("opened").toBool(); }));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(MenuPicker, EscapeClosesItWithoutAChoiceAndTheFocusReturns)
{
    Bench bench;
    auto *picker = bench.show(menuPicker);
    QSignalSpy chosen(picker, SIGNAL(chosen(int)));
    QTest::keyClick(&bench.window(), Qt::Key_Down);
    ASSERT_TRUE(picker->property("opened").toBool());
    QTest::keyClick(&bench.window(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picker->property("opened").toBool(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return picker->hasActiveFocus(); }));
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(MenuPicker, OpensByAClickAndIsAsWideAsItsChoice)
{
    Bench bench;
    auto *picker = bench.show(menuPicker);
    const qreal before = picker->implicitWidth();
    picker->setProperty("current", 0);
    EXPECT_LT(picker->implicitWidth(), before);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, middle(picker));
    EXPECT_TRUE(picker->property("opened").toBool());
}

TEST(MenuPicker, ASecondClickClosesIt)
{
    Bench bench;
    auto *picker = bench.show(menuPicker);
    const auto click = [&] {
        QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, middle(picker));
    };
    click();
    ASSERT_TRUE(picker->property("opened").toBool());
    click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picker->property("opened").toBool(); }));
    EXPECT_TRUE(picker->hasActiveFocus());
    EXPECT_EQ(bench.warnings(), "");
}

TEST(ToggleSwitch, TurnsWithEveryWayOfPressing)
{
    Bench bench;
    auto *toggle =
        bench.show(u"ToggleSwitch { name: 'Afficher les tickets terminés'; focus: true }"_s);
    ASSERT_NE(toggle, nullptr) << bench.warnings();
    const auto isOn = [&] { return toggle->property("checked").toBool(); };
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, middle(toggle));
    EXPECT_TRUE(isOn());
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    EXPECT_FALSE(isOn());
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    EXPECT_TRUE(isOn());
    doAction(toggle, QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(isOn());
    EXPECT_EQ(accessible(toggle)->text(QAccessible::Name), u"Afficher les tickets terminés"_s);
    EXPECT_EQ(accessible(toggle)->role(), QAccessible::CheckBox);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(DisclosureButton, OpensByAPressAndByTheArrows)
{
    Bench bench;
    auto *button = bench.show(u"DisclosureButton { text: 'Détails'; focus: true }"_s);
    ASSERT_NE(button, nullptr) << bench.warnings();
    const auto isOpen = [&] { return button->property("expanded").toBool(); };
    EXPECT_EQ(accessible(button)->text(QAccessible::Description), u"Replié"_s);
    QTest::keyClick(&bench.window(), Qt::Key_Right);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(accessible(button)->text(QAccessible::Description), u"Déplié"_s);
    QTest::keyClick(&bench.window(), Qt::Key_Left);
    EXPECT_FALSE(isOpen());
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, middle(button));
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(bench.warnings(), "");
}

class SplitHandleTest : public testing::Test
{
protected:
    QQuickItem *make(const QString &more = {})
    {
        auto *made = bench.show(u"SplitHandle { x: 240; height: 300; name: 'Largeur de la barre "
                                u"latérale'; focus: true; "
                                "value: 240; minimum: 210; maximum: 320; standard: 240; "
                                "onMoved: width => value = width; %1 }"_s.arg(more));
        EXPECT_NE(made, nullptr) << bench.warnings();
        return made;
    }
    static qreal value(const QQuickItem *handle) { return handle->property("value").toReal(); }
    void drag(int from, int to)
    {
        QTest::mousePress(&bench.window(), Qt::LeftButton, {}, {from, 100});
        QTest::mouseMove(&bench.window(), {(from + to) / 2, 100});
        QTest::mouseMove(&bench.window(), {to, 100});
        QTest::mouseRelease(&bench.window(), Qt::LeftButton, {}, {to, 100});
    }

    Bench bench;
};

TEST_F(SplitHandleTest, FollowsThePointer)
{
    auto *handle = make();
    drag(244, 274);
    EXPECT_DOUBLE_EQ(value(handle), 270);
    EXPECT_EQ(bench.warnings(), "");
}

TEST_F(SplitHandleTest, StopsAtItsEnds)
{
    auto *handle = make();
    drag(244, 590);
    EXPECT_DOUBLE_EQ(value(handle), 320);
    drag(244, 20);
    EXPECT_DOUBLE_EQ(value(handle), 210);
}

TEST_F(SplitHandleTest, ATrailingPaneGrowsToTheLeft)
{
    auto *handle = make(u"trailing: true"_s);
    drag(244, 224);
    EXPECT_DOUBLE_EQ(value(handle), 260);
    QTest::keyClick(&bench.window(), Qt::Key_Left);
    EXPECT_DOUBLE_EQ(value(handle), 276);
}

TEST_F(SplitHandleTest, KeysMoveItAndADoubleClickBringsItBack)
{
    auto *handle = make();
    QTest::keyClick(&bench.window(), Qt::Key_Right);
    EXPECT_DOUBLE_EQ(value(handle), 256);
    QTest::keyClick(&bench.window(), Qt::Key_Left);
    EXPECT_DOUBLE_EQ(value(handle), 240);
    QTest::keyClick(&bench.window(), Qt::Key_End);
    EXPECT_DOUBLE_EQ(value(handle), 320);
    QTest::keyClick(&bench.window(), Qt::Key_Home);
    EXPECT_DOUBLE_EQ(value(handle), 210);
    QTest::mouseDClick(&bench.window(), Qt::LeftButton, {}, {244, 100});
    EXPECT_DOUBLE_EQ(value(handle), 240);
}

TEST_F(SplitHandleTest, ScreenReadersKnowItAndMoveIt)
{
    auto *handle = make();
    EXPECT_EQ(accessible(handle)->role(), QAccessible::Splitter);
    EXPECT_EQ(accessible(handle)->text(QAccessible::Name), u"Largeur de la barre latérale"_s);
    EXPECT_EQ(accessible(handle)->text(QAccessible::Description), u"240 points"_s);
    doAction(handle, QAccessibleActionInterface::increaseAction());
    EXPECT_DOUBLE_EQ(value(handle), 256);
    doAction(handle, QAccessibleActionInterface::decreaseAction());
    EXPECT_DOUBLE_EQ(value(handle), 240);
}

TEST(SecureField, ShowsDotsAndTellsScreenReadersItsNameAndNothingOfItsText)
{
    Bench bench;
    auto *field =
        bench.show(u"SecureField { name: 'Token API'; placeholderText: 'Token'; focus: true }"_s);
    ASSERT_NE(field, nullptr) << bench.warnings();
    QSignalSpy accepted(field, SIGNAL(accepted()));
    QTest::keyClick(&bench.window(), Qt::Key_S);
    QTest::keyClick(&bench.window(), Qt::Key_E);
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    EXPECT_EQ(field->property("secret").toString(), u"se"_s);
    EXPECT_EQ(accepted.count(), 1);
    auto *known = accessible(field);
    EXPECT_EQ(known->role(), QAccessible::EditableText);
    EXPECT_EQ(known->text(QAccessible::Name), u"Token API"_s);
    EXPECT_EQ(known->text(QAccessible::Description), u"Texte masqué"_s);
    EXPECT_TRUE(known->state().focused);
    EXPECT_EQ(known->childCount(), 0);
    EXPECT_EQ(known->text(QAccessible::Value), QString());
    const auto *inner = bench.window().activeFocusItem();
    EXPECT_EQ(inner->property("displayText").toString(), u"••"_s);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(ProgressBar, IsNamedAndFilledByItsShare)
{
    Bench bench;
    auto *bar = bench.show(u"ProgressBar { name: 'Téléchargement'; value: 0.25; width: 200 }"_s);
    ASSERT_NE(bar, nullptr) << bench.warnings();
    const auto *filled = bar->childItems().first();
    EXPECT_DOUBLE_EQ(filled->width(), 50);
    bar->setProperty("value", 7);
    EXPECT_DOUBLE_EQ(filled->width(), 200);
    bar->setProperty("value", -1);
    EXPECT_DOUBLE_EQ(filled->width(), 0);
    bar->setProperty("value", 0.001);
    EXPECT_DOUBLE_EQ(filled->width(), 4) << "its ends stay round";
    EXPECT_EQ(accessible(bar)->role(), QAccessible::ProgressBar);
    EXPECT_EQ(accessible(bar)->text(QAccessible::Description), u"0 %"_s);
}

TEST(SegmentedPicker, IsAGroupOfRadioButtonsOfWhichOneIsChecked)
{
    Bench bench;
    auto *picker =
        bench.show(u"SegmentedPicker { name: 'Vue'; choices: ['Liste', 'Tableau']; current: 1 }"_s);
    ASSERT_NE(picker, nullptr) << bench.warnings();
    auto *group = accessible(picker);
    EXPECT_EQ(group->role(), QAccessible::Grouping);
    EXPECT_EQ(group->text(QAccessible::Name), u"Vue"_s);
    ASSERT_EQ(group->childCount(), 2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(group->child(i)->role(), QAccessible::RadioButton);
        EXPECT_EQ(group->child(i)->state().checked, i == 1);
    }
    EXPECT_EQ(group->child(0)->text(QAccessible::Name), u"Liste"_s);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(SegmentedPicker, EachSegmentIsChosenByAClickAndByKeys)
{
    Bench bench;
    auto *picker =
        bench.show(u"SegmentedPicker { name: 'Vue'; choices: ['Liste', 'Tableau']; current: 1 }"_s);
    ASSERT_NE(picker, nullptr) << bench.warnings();
    QSignalSpy chosen(picker, SIGNAL(chosen(int)));
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, {15, 14});
    QTest::keyClick(&bench.window(), Qt::Key_Tab);
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 3);
    EXPECT_EQ(chosen[0].first().toInt(), 0);
    EXPECT_EQ(chosen[1].first().toInt(), 1);
    EXPECT_EQ(chosen[2].first().toInt(), 1);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(SegmentedPicker, ArrowsChooseTheNeighbourAndStopAtTheEnds)
{
    Bench bench;
    auto *picker = bench.show(u"SegmentedPicker { name: 'Vue'; choices: ['Liste', 'Tableau']; "
                              "current: 0; onChosen: index => current = index }"_s);
    ASSERT_NE(picker, nullptr) << bench.warnings();
    const auto current = [&] { return picker->property("current").toInt(); };
    QTest::keyClick(&bench.window(), Qt::Key_Tab);
    QTest::keyClick(&bench.window(), Qt::Key_Left);
    EXPECT_EQ(current(), 0);
    QTest::keyClick(&bench.window(), Qt::Key_Right);
    EXPECT_EQ(current(), 1);
    QTest::keyClick(&bench.window(), Qt::Key_Right);
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(accessible(bench.window().activeFocusItem())->text(QAccessible::Name), u"Tableau"_s);
    EXPECT_EQ(bench.warnings(), "");
}
