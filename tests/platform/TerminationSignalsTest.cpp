#include "platform/TerminationSignals.h"

#include <QSignalSpy>

#include <csignal>
#include <gtest/gtest.h>

TEST(TerminationSignals, ASignalIsToldFromTheEventLoop)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const TerminationSignals signals;
        QSignalSpy asked(&signals, &TerminationSignals::asked);
        std::raise(signal);
        EXPECT_EQ(asked.count(), 0);
        EXPECT_TRUE(asked.wait()) << signal;
    }
}

TEST(TerminationSignals, TheSecondSignalEndsTheProcess)
{
    EXPECT_EXIT(
        {
            const TerminationSignals signals;
            std::raise(SIGTERM);
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

TEST(TerminationSignals, AnIgnoredSignalStaysIgnored)
{
    std::signal(SIGHUP, SIG_IGN);
    {
        const TerminationSignals signals;
    }
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}
