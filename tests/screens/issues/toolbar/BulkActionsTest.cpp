#include "screens/issues/toolbar/BulkActions.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SelectedWord, OneIsInTheSingularAndTwoInThePlural)
{
    EXPECT_EQ(selectedWord(1), u"sélectionné"_s);
    EXPECT_EQ(selectedWord(2), u"sélectionnés"_s);
}
