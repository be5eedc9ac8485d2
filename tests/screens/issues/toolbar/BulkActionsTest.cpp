#include "screens/issues/toolbar/BulkActions.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SelectedCountText, OneIsInTheSingularAndTwoInThePlural)
{
    EXPECT_EQ(selectedCountText(1), u"1 sélectionné"_s);
    EXPECT_EQ(selectedCountText(2), u"2 sélectionnés"_s);
}
