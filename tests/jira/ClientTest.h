#pragma once

#include "jira/JiraClient.h"
#include "simulator/server/RawServer.h"
#include "support/ManualCalendar.h"
#include "support/ManualClock.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <optional>

/// A client for a site whose responses each test scripts.
class ClientTest : public testing::Test
{
protected:
    ClientTest()
    {
        connectAs({server.url(), QStringLiteral("alice@exemple.fr"), QStringLiteral("s3cret")});
    }

    void connectAs(const JiraCredentials &credentials)
    {
        client.emplace(credentials, clock, calendar, cache.filePath(QStringLiteral("attachments")));
    }

    /// Waits for the result of an operation and returns it; throws its failure.
    template <typename T>
    static T resultOf(QCoro::Task<T> task)
    {
        const TaskResult<T> result(std::move(task));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); })) << "the operation never ended";
        return result.value();
    }
    /// The text that the user reads if the operation fails; empty if it succeeds.
    template <typename T>
    static QString failureOf(QCoro::Task<T> task)
    {
        try {
            resultOf(std::move(task));
        } catch (const Failure &failure) {
            return failure.message();
        }
        return {};
    }
    /// The requests received so far, each as "GET /path?query".
    QStringList asked() const
    {
        QStringList requests;
        for (const RawRequest &request : server.journal())
            requests.append(QString::fromUtf8(request.method + ' ' + request.target));
        return requests;
    }
    const RawRequest &lastRequest() const { return server.journal().last(); }

    QTemporaryDir cache;
    ManualClock clock;
    ManualCalendar calendar;
    RawServer server;
    std::optional<JiraClient> client;
};
