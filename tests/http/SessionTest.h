#pragma once

#include "http/HttpSession.h"
#include "http/TransportError.h"
#include "simulator/server/RawServer.h"
#include "support/ManualClock.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <gtest/gtest.h>
#include <optional>

/// A session with the identity for a server that each test scripts.
class SessionTest : public testing::Test
{
protected:
    static constexpr auto Secret = "Basic c2VjcmV0";

    explicit SessionTest(std::optional<Certificates::Kind> certificate = {}) : server(certificate)
    {
        open();
    }

    /// Creates a new session, which has no connections yet.
    void open() { session.emplace(Identity{Origin::of(server.url()), Secret}, clock); }

    HttpRequest request(const char *path, const QByteArray &verb = "GET") const
    {
        HttpRequest result{.verb = verb, .headers = {}, .body = {}, .saveAs = {}};
        result.url = server.url().resolved(QUrl::fromEncoded(path));
        return result;
    }
    HttpRequest write(const char *path, const QByteArray &verb, const QByteArray &body) const
    {
        HttpRequest result = request(path, verb);
        result.purpose = HttpRequest::Purpose::Write;
        result.body = body;
        return result;
    }

    /// Waits for the response to a request and returns it.
    HttpAnswer answerTo(const HttpRequest &sent)
    {
        const TaskResult<HttpAnswer> result(session->send(sent));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return result.value();
    }
    std::optional<TransportError::Kind> failureOf(const HttpRequest &sent)
    {
        try {
            answerTo(sent);
        } catch (const TransportError &error) {
            return error.kind();
        }
        return std::nullopt;
    }
    bool arrive(qsizetype requests)
    {
        return runUntil([&] { return server.journal().size() >= requests; });
    }

    ManualClock clock;
    RawServer server;
    std::optional<HttpSession> session;
};
