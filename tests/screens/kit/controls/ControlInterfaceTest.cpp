#include "screens/Bench.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Case
{
    const char *name;
    QString qml;
    const char *pressed;
};

const Case cases[]{
    {"PushButton", u"PushButton { text: 'Annuler'; onClicked: presses++; property int presses }"_s,
     "presses"},
    {"IconButton",
     u"IconButton { name: 'Fermer'; symbol: 'xmark'; onClicked: presses++; property int presses }"_s,
     "presses"},
    {"GlassChip", u"GlassChip { title: 'Statut'; onClicked: presses++; property int presses }"_s,
     "presses"},
    {"SidebarRow",
     u"SidebarRow { text: 'App mobile'; onClicked: presses++; property int presses }"_s, "presses"},
    {"MenuEntry",
     u"PopupMenuItem { text: 'Copier'; onTriggered: presses++; property int presses }"_s,
     "presses"},
    {"CheckBox", u"CheckBox { text: 'Interne' }"_s, "checked"},
    {"ToggleSwitch", u"ToggleSwitch { name: 'Clé' }"_s, "checked"},
};

} // namespace

class ControlInterfaceTest : public testing::TestWithParam<Case>
{
protected:
    ControlInterfaceTest() : control(bench.show(GetParam().qml))
    {
        EXPECT_NE(control, nullptr) << bench.warnings();
    }

    QAccessibleInterface &spoken() { return *Bench::accessible(control); }
    void perform(const QString &action) { spoken().actionInterface()->doAction(action); }
    bool isPressed() { return control->property(GetParam().pressed).toInt() != 0; }

    Bench bench;
    QQuickItem *control = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Controls, ControlInterfaceTest, testing::ValuesIn(cases),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_P(ControlInterfaceTest, ADisabledControlIsToldAsOneAndDoesNothing)
{
    EXPECT_FALSE(spoken().state().disabled);
    EXPECT_TRUE(spoken().state().focusable || control->inherits("QQuickMenuItem"));
    control->setEnabled(false);
    EXPECT_TRUE(spoken().state().disabled);
    EXPECT_FALSE(spoken().state().focusable);
    perform(QAccessibleActionInterface::pressAction());
    perform(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(isPressed());
}

TEST_P(ControlInterfaceTest, AControlInADisabledPartIsDisabledToo)
{
    bench.window().contentItem()->setEnabled(false);
    EXPECT_TRUE(spoken().state().disabled);
    bench.window().contentItem()->setEnabled(true);
    EXPECT_FALSE(spoken().state().disabled);
}

TEST_P(ControlInterfaceTest, AnEnabledControlIsPressed)
{
    perform(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(isPressed());
}

TEST_P(ControlInterfaceTest, ItIsPartOfTheTree)
{
    auto *parent = spoken().parent();
    ASSERT_NE(parent, nullptr);
    const int index = parent->indexOfChild(&spoken());
    ASSERT_GE(index, 0);
    EXPECT_EQ(parent->child(index), &spoken());
    EXPECT_EQ(spoken().window(), &bench.window());
    for (int i = 0; i < spoken().childCount(); ++i) {
        EXPECT_EQ(spoken().child(i)->parent(), &spoken());
        EXPECT_EQ(spoken().indexOfChild(spoken().child(i)), i);
    }
    EXPECT_FALSE(spoken().text(QAccessible::Name).isEmpty());
    EXPECT_FALSE(spoken().state().invisible);
    EXPECT_FALSE(spoken().state().offscreen);
    control->setX(5000);
    EXPECT_TRUE(spoken().state().offscreen);
    control->setVisible(false);
    EXPECT_TRUE(spoken().state().invisible);
}
