#include "commands/PickerWords.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PickerWords, EachPickerHasItsTitleAndPlaceholder)
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
