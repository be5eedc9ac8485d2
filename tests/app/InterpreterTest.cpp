#include "app/Interpreter.h"

#include <QByteArray>
#include <QtGlobal>

#include <gtest/gtest.h>

namespace {

constexpr auto threshold = "QV4_JIT_CALL_THRESHOLD";

class InterpreterTest : public testing::Test
{
protected:
    void TearDown() override
    {
        if (m_wasSet)
            qputenv(threshold, m_before);
        else
            qunsetenv(threshold);
    }

private:
    bool m_wasSet = qEnvironmentVariableIsSet(threshold);
    QByteArray m_before = qgetenv(threshold);
};

} // namespace

TEST_F(InterpreterTest, FunctionsThatRunAFewTimesAreNotTranslated)
{
    qunsetenv(threshold);
    interpretAtFirst();
    EXPECT_GE(qEnvironmentVariableIntValue(threshold), 100);
}

TEST_F(InterpreterTest, WhatTheUserHasSetStands)
{
    qputenv(threshold, "7");
    interpretAtFirst();
    EXPECT_EQ(qEnvironmentVariableIntValue(threshold), 7);
}
