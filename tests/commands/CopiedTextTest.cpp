#include "commands/CopiedText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CopiedText, SeveralKeysAreSortedAndSeparatedByCommas)
{
    const auto copied = copiedKeys({u"B-2"_s, u"A-10"_s, u"A-9"_s});
    EXPECT_EQ(copied, (CopiedText{u"A-10, A-9, B-2"_s, u"Clés"_s}));
    EXPECT_EQ(copied->toastMessage(), u"Clés copié");
}

TEST(CopiedText, ASingleKeyIsNamed)
{
    const auto copied = copiedKeys({u"A-1"_s});
    EXPECT_EQ(copied, (CopiedText{u"A-1"_s, u"Clé A-1"_s}));
    EXPECT_EQ(copied->toastMessage(), u"Clé A-1 copié");
}

TEST(CopiedText, NothingWithoutAKey)
{
    EXPECT_EQ(copiedKeys({}), std::nullopt);
}
