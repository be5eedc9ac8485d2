#include "screens/Bench.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Group
{
    const char *name;
    const char *qml;
    QAccessible::Role role;
    QAccessible::Role choice;
};

/// Every component in which one of three is chosen, within a form that follows the choice while `follows` is set.
const Group groups[]{{"Segments",
                      "SegmentedPicker { name: 'Choix'; choices: ['Un', 'Deux', 'Trois']; %1 }",
                      QAccessible::Grouping, QAccessible::RadioButton},
                     {"Swatches",
                      "SwatchPicker { name: 'Choix'; choices: ['Un', 'Deux', 'Trois']; colors: "
                      "['red', 'green', 'blue']; %1 }",
                      QAccessible::Grouping, QAccessible::RadioButton},
                     {"Tiles",
                      "TilePicker { name: 'Choix'; choices: ['Un', 'Deux', 'Trois']; pictures: "
                      "[Item {}, Item {}, Item {}] %1 }",
                      QAccessible::Grouping, QAccessible::RadioButton},
                     {"Tabs",
                      "TabList { id: list; name: 'Choix'; count: 3; %1 Repeater { model: ['Un', "
                      "'Deux', 'Trois']; IconTab { "
                      "required property int index; required property string modelData; text: "
                      "modelData; symbol: 'keyboard'; "
                      "on: index === list.current; onChosen: list.chosen(index) } } }",
                      QAccessible::PageTabList, QAccessible::PageTab}};

} // namespace

class ChoicesTest : public testing::TestWithParam<Group>
{
protected:
    void SetUp() override
    {
        form = bench.show(
            u"Column { property bool follows: true; property int current: 1; property alias group: "
            "holder.data; InputField { name: 'Avant' } Item { id: holder; width: 500; height: 120; "
            "%1 } "
            "InputField { name: 'Après' } }"_s.arg(
                QString::fromLatin1(GetParam().qml)
                    .arg(
                        u"current: parent.parent.current; "
                        "onChosen: index => { if (parent.parent.follows) parent.parent.current = index }"_s)));
        ASSERT_NE(form, nullptr) << bench.warnings();
        group = form->childItems()[1]->childItems().first();
        bench.window().grabWindow();
    }
    void TearDown() override { EXPECT_EQ(bench.warnings(), ""); }

    QList<QAccessibleInterface *> choices()
    {
        QList<QAccessibleInterface *> found;
        auto *known = Bench::accessible(group);
        for (int i = 0; i < known->childCount(); ++i)
            found += known->child(i);
        return found;
    }
    /// The positions of the choices that screen readers are told to be chosen.
    QList<int> chosen()
    {
        QList<int> found;
        const auto all = choices();
        for (int i = 0; i < all.size(); ++i) {
            const auto state = all[i]->state();
            if (GetParam().choice == QAccessible::PageTab ? state.selected : state.checked)
                found += i;
        }
        return found;
    }
    void press(Qt::Key key) { QTest::keyClick(&bench.window(), key); }
    QString focusedName()
    {
        return Bench::accessible(bench.window().activeFocusItem())->text(QAccessible::Name);
    }
    void click(int index)
    {
        const QRect place = choices()[index]->rect();
        QTest::mouseClick(&bench.window(), Qt::LeftButton, {},
                          bench.window().mapFromGlobal(place.center()));
    }

    Bench bench;
    QQuickItem *form = nullptr;
    QQuickItem *group = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Kit, ChoicesTest, testing::ValuesIn(groups),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_P(ChoicesTest, TheGroupAndItsChoicesHaveANameAndARoleAndOneIsChosenFromTheStart)
{
    auto *known = Bench::accessible(group);
    EXPECT_EQ(known->role(), GetParam().role);
    EXPECT_EQ(known->text(QAccessible::Name), u"Choix"_s);
    const auto all = choices();
    ASSERT_EQ(all.size(), 3);
    for (auto *choice : all)
        EXPECT_EQ(choice->role(), GetParam().choice);
    EXPECT_EQ(all[0]->text(QAccessible::Name), u"Un"_s);
    EXPECT_EQ(chosen(), QList<int>{1});
}

TEST_P(ChoicesTest, AReaderThatStartsLaterIsToldTheChosenOne)
{
    QAccessible::setActive(false);
    form->setProperty("current", 2);
    QAccessible::setActive(true);
    EXPECT_EQ(chosen(), QList<int>{2});
}

TEST_P(ChoicesTest, IsOneStopOfTheTabKey)
{
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), u"Avant"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), u"Deux"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), u"Après"_s);
}

TEST_P(ChoicesTest, ArrowsMoveAndChooseAndStopAtTheEnds)
{
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Right);
    EXPECT_EQ(focusedName(), u"Trois"_s);
    EXPECT_EQ(chosen(), QList<int>{2});
    press(Qt::Key_Right);
    EXPECT_EQ(chosen(), QList<int>{2});
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(focusedName(), u"Un"_s);
    EXPECT_EQ(chosen(), QList<int>{0});
}

TEST_P(ChoicesTest, AClickChooses)
{
    click(2);
    EXPECT_EQ(form->property("current").toInt(), 2);
    EXPECT_EQ(chosen(), QList<int>{2});
}

TEST_P(ChoicesTest, AChoiceThatTheOwnerDoesNotFollowChangesNothing)
{
    form->setProperty("follows", false);
    click(2);
    EXPECT_EQ(chosen(), QList<int>{1});
    click(1);
    EXPECT_EQ(chosen(), QList<int>{1});
}
