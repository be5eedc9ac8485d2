#include "jira/wire/TextPool.h"

#include <gtest/gtest.h>

namespace {

TEST(TextPool, ATextSaidTwiceIsMadeOnce)
{
    TextPool pool;
    const QString first = pool.text("Élodie");
    const QString second = pool.text("Élodie");
    EXPECT_EQ(first, QStringLiteral("Élodie"));
    EXPECT_EQ(second.constData(), first.constData());
}

TEST(TextPool, ManyTextsAreEachTheirOwn)
{
    TextPool pool;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 5000; ++i)
            ASSERT_EQ(pool.text("clé " + std::to_string(i)), QStringLiteral("clé %1").arg(i));
    }
}

TEST(TextPool, EmptyTextsAndZerosAreTexts)
{
    TextPool pool;
    EXPECT_EQ(pool.text(""), QString());
    EXPECT_FALSE(pool.text("").isNull());
    EXPECT_EQ(pool.text(std::string_view("a\0b", 3)).size(), 3);
}

TEST(TextPool, ALongTextIsMadeEachTime)
{
    TextPool pool;
    const std::string text(1000, 'x');
    EXPECT_EQ(pool.text(text), QString(1000, QLatin1Char('x')));
    EXPECT_NE(pool.text(text).constData(), pool.text(text).constData());
}

} // namespace
