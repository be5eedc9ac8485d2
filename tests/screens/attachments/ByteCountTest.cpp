#include "screens/attachments/facts/ByteCount.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct Count
{
    qint64 bytes;
    QString text;
};

} // namespace

class ByteCount : public testing::TestWithParam<Count>
{
};

INSTANTIATE_TEST_SUITE_P(
    Sizes, ByteCount,
    testing::Values(Count{0, u"0\u00A0octet"_s}, Count{1, u"1\u00A0octet"_s},
                    Count{386, u"386\u00A0octets"_s}, Count{999, u"999\u00A0octets"_s},
                    Count{1000, u"1\u00A0Ko"_s}, Count{6123, u"6\u00A0Ko"_s},
                    Count{999'499, u"999\u00A0Ko"_s}, Count{999'500, u"1\u00A0Mo"_s},
                    Count{1'000'000, u"1\u00A0Mo"_s}, Count{1'540'000, u"1,5\u00A0Mo"_s},
                    Count{999'960'000, u"1\u00A0Go"_s}, Count{2'250'000'000, u"2,25\u00A0Go"_s},
                    Count{2'500'000'000, u"2,5\u00A0Go"_s}, Count{-5, u"0\u00A0octet"_s},
                    Count{std::numeric_limits<qint64>::max(), u"9,22\u00A0Eo"_s}));

TEST_P(ByteCount, IsWrittenAsFrenchDesktopsDo)
{
    EXPECT_EQ(byteCountText(GetParam().bytes), GetParam().text)
        << byteCountText(GetParam().bytes).toStdString();
}
