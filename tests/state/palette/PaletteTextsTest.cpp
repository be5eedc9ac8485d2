#include "state/palette/PaletteTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PaletteTexts, EachKindHasItsTitleAndPlaceholder)
{
    EXPECT_EQ(pickerTitle(PickerKind::Status), u"Changer le statut"_s);
    EXPECT_EQ(pickerTitle(PickerKind::Priority), u"Changer la priorité"_s);
    EXPECT_EQ(pickerTitle(PickerKind::Assignee), u"Assigner"_s);
    EXPECT_EQ(pickerTitle(PickerKind::Labels), u"Étiquettes"_s);
    EXPECT_EQ(pickerPlaceholder(PickerKind::Status), u"Statut…"_s);
    EXPECT_EQ(pickerPlaceholder(PickerKind::Priority), u"Priorité…"_s);
    EXPECT_EQ(pickerPlaceholder(PickerKind::Assignee), u"Assigner…"_s);
    EXPECT_EQ(pickerPlaceholder(PickerKind::Labels), u"Ajouter des étiquettes…"_s);
}

TEST(KeyCapsules, ThreeKeysAreShownAndTheOthersCounted)
{
    EXPECT_EQ(keyCapsules({}), QStringList());
    EXPECT_EQ(keyCapsules({u"A-1"_s}), QStringList{u"A-1"_s});
    EXPECT_EQ(keyCapsules({u"A-1"_s, u"A-2"_s, u"A-3"_s}),
              (QStringList{u"A-1"_s, u"A-2"_s, u"A-3"_s}));
    EXPECT_EQ(keyCapsules({u"A-1"_s, u"A-2"_s, u"A-3"_s, u"A-4"_s, u"A-5"_s}),
              (QStringList{u"A-1"_s, u"A-2"_s, u"A-3"_s, u"+2"_s}));
}
