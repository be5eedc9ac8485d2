#include "http/BodyDecoder.h"

#include "simulator/server/Packed.h"

#include <gtest/gtest.h>
#include <optional>

namespace {

/// The decompressed body, fed in pieces of the given number of bytes; nothing if it is damaged or incomplete.
std::optional<QByteArray> unpacked(const QByteArray &body, const QByteArray &coding,
                                   qsizetype piece)
{
    BodyDecoder decoder(coding);
    QByteArray result;
    for (qsizetype at = 0; at < body.size(); at += piece) {
        const auto append = [&](QByteArrayView bytes) {
            result.append(bytes);
            return true;
        };
        if (!decoder.feed(body.mid(at, piece), append))
            return std::nullopt;
    }
    return decoder.isComplete() ? std::optional(result) : std::nullopt;
}

QByteArray text()
{
    QByteArray result;
    for (int i = 0; i < 20000; ++i)
        result += QByteArray::number(i * 7919);
    return result;
}

class InPieces : public testing::TestWithParam<int>
{
};

TEST_P(InPieces, APackedBodyIsUnpacked)
{
    EXPECT_EQ(unpacked(packed(text()), "gzip", GetParam()), text());
}

TEST_P(InPieces, APlainBodyIsHandedOn)
{
    EXPECT_EQ(unpacked(text(), {}, GetParam()), text());
    EXPECT_EQ(unpacked(text(), "Identity", GetParam()), text());
}

TEST_P(InPieces, TwoStreamsAreOneBody)
{
    EXPECT_EQ(unpacked(packed("ab") + packed("cd"), " GZIP", GetParam()), "abcd");
}

TEST_P(InPieces, WhatFollowsAStreamAndIsNoneIsDamage)
{
    EXPECT_EQ(unpacked(packed("ab") + "trailing", "gzip", GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Pieces, InPieces, testing::Values(1, 7, 4096, 1 << 20));

TEST(BodyDecoder, EveryCutIsNoticed)
{
    const QByteArray body = packed("{\"summary\":\"Une phrase\"}");
    for (qsizetype size = 1; size < body.size(); ++size)
        EXPECT_EQ(unpacked(body.first(size), "gzip", body.size()), std::nullopt) << size;
}

TEST(BodyDecoder, ASinkThatWantsNoMoreEndsIt)
{
    BodyDecoder decoder("gzip");
    int pieces = 0;
    EXPECT_FALSE(decoder.feed(packed(QByteArray(10LL * 1024 * 1024, ' ')),
                              [&](QByteArrayView) { return ++pieces < 3; }));
    EXPECT_EQ(pieces, 3);
}

} // namespace
