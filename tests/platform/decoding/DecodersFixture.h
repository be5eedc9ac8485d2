#pragma once

#include "platform/decoding/Decoders.h"
#include "support/ManualClock.h"
#include "support/TaskResult.h"

#include <gtest/gtest.h>

/// Requests to helpers, and what is known of the helpers from outside.
class DecodersFixture : public testing::Test
{
protected:
    static constexpr qint64 MostPixels = qint64(32) * 1024 * 1024;

    /// The program of the tests, as a helper.
    static DecodingProgram ownProgram();
    static DecodingRequest pictureIn(QSize bound);
    static DecodingRequest frameAt(int index);
    static DecodingRequest pageAt(int index, QSize size);
    static DecodingRequest pageSizes() { return {.kind = DecodingKind::Pages}; }

    /// The result of a request, which is waited for.
    static Decoded resultOf(Decoders &decoders, const QByteArray &bytes,
                            const DecodingRequest &request);
    static Decoded resultOf(Decoders &decoders, const DecodingInput &input,
                            const DecodingRequest &request);
    /// The processes that this one has started and not yet buried.
    static QList<qint64> children();
    static bool readsPictures(Decoders &decoders);

    ManualClock clock;
};
