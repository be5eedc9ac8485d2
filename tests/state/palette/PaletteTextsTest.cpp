#include "state/palette/PaletteTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(KeyCapsules, ThreeKeysAreShownAndTheOthersCounted)
{
    EXPECT_EQ(keyCapsules({}), QStringList());
    EXPECT_EQ(keyCapsules({u"A-1"_s}), QStringList{u"A-1"_s});
    EXPECT_EQ(keyCapsules({u"A-1"_s, u"A-2"_s, u"A-3"_s}),
              (QStringList{u"A-1"_s, u"A-2"_s, u"A-3"_s}));
    EXPECT_EQ(keyCapsules({u"A-1"_s, u"A-2"_s, u"A-3"_s, u"A-4"_s, u"A-5"_s}),
              (QStringList{u"A-1"_s, u"A-2"_s, u"A-3"_s, u"+2"_s}));
}
