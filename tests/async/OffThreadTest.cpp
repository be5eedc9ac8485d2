#include "async/OffThread.h"

#include "model/Failure.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QCoro::Task<bool> comesHome()
{
    const QThread *const before = QThread::currentThread();
    const QThread *const there = co_await offThread([] { return QThread::currentThread(); });
    co_return there != before &&QThread::currentThread() == before;
}

TEST(OffThread, RunsElsewhereAndComesBack)
{
    const TaskResult<bool> result(comesHome());
    EXPECT_FALSE(result.isDone());
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_TRUE(result.value());
}

TEST(OffThread, BringsAFailureBack)
{
    const TaskResult<int> result(offThread([]() -> int { throw Failure(u"non"_s); }));
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Failure);
}

/// Records on which thread it is destroyed.
struct Witness
{
    ~Witness() { *endedOn = QThread::currentThread(); }
    const QThread **endedOn;
};

TEST(OffThread, WhatTheFunctionHoldsEndsElsewhereToo)
{
    const QThread *endedOn = nullptr;
    auto witness = std::make_shared<Witness>(&endedOn);
    const TaskResult<int> result(offThread([held = std::move(witness)] { return 1; }));
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_NE(endedOn, nullptr);
    EXPECT_NE(endedOn, QThread::currentThread());
}

} // namespace
