#include "screens/Bench.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Case
{
    const char *name;
    QString qml;
    bool canBeToggled;
};

const Case cases[]{
    {"PushButton", u"PushButton { text: 'Annuler' }"_s, false},
    {"IconButton", u"IconButton { name: 'Fermer'; symbol: 'xmark' }"_s, false},
    {"ToolbarCell", u"ToolbarCell { name: 'Actualiser'; symbol: 'arrow.clockwise' }"_s, false},
    {"GlassChip", u"GlassChip { title: 'Statut' }"_s, false},
    {"DisclosureButton", u"DisclosureButton { text: 'Détails' }"_s, false},
    {"SidebarRow", u"SidebarRow { text: 'App mobile' }"_s, false},
    {"PlainEntry", u"PopupMenuItem { text: 'Copier' }"_s, false},
    {"CheckBox", u"CheckBox { text: 'Interne' }"_s, true},
    {"ToggleSwitch", u"ToggleSwitch { name: 'Clé' }"_s, true},
};

} // namespace

class AccessibleActions : public testing::TestWithParam<Case>
{
};

INSTANTIATE_TEST_SUITE_P(Controls, AccessibleActions, testing::ValuesIn(cases),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_P(AccessibleActions, OfferToToggleOnlyWhatIsOnOrOff)
{
    Bench bench;
    auto *control = bench.show(GetParam().qml);
    ASSERT_NE(control, nullptr) << bench.warnings();
    const QStringList actions = Bench::accessible(control)->actionInterface()->actionNames();
    EXPECT_EQ(actions.contains(QAccessibleActionInterface::toggleAction()), GetParam().canBeToggled)
        << actions.join(u' ').toStdString();
    EXPECT_TRUE(actions.contains(QAccessibleActionInterface::pressAction()));
}

TEST_P(AccessibleActions, ToggleChangesWhatIsOnOrOff)
{
    if (!GetParam().canBeToggled)
        return;
    Bench bench;
    auto *control = bench.show(GetParam().qml);
    ASSERT_NE(control, nullptr) << bench.warnings();
    Bench::accessible(control)->actionInterface()->doAction(
        QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(control->property("checked").toBool());
}
