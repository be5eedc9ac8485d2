#include "platform/decoding/ConfinementProbe.h"
#include "platform/decoding/helper/DecodeMain.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

// The program of these tests is also the helper that they start, as Velmora is.
int main(int argc, char **argv)
{
    if (const auto code = decodeIfAsked(argc, argv))
        return *code;
    if (const auto code = probeIfAsked(argc, argv))
        return *code;
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
