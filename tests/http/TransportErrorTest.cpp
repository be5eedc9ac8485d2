#include "http/TransportError.h"

#include <QSet>

#include <gtest/gtest.h>

namespace {

TEST(TransportError, EachKindHasASentenceOfItsOwn)
{
    QSet<QString> texts;
    constexpr auto last = int(TransportError::Kind::NotStored);
    for (int kind = 0; kind <= last; ++kind) {
        const TransportError error{TransportError::Kind(kind)};
        EXPECT_EQ(int(error.kind()), kind);
        EXPECT_TRUE(error.message().endsWith(u'.')) << kind;
        texts.insert(error.message());
    }
    EXPECT_EQ(texts.size(), last + 1);
}

} // namespace
