#pragma once

#include "jira/JiraClient.h"
#include "simulator/SimulatedSite.h"
#include "simulator/SiteSeed.h"
#include "support/ManualCalendar.h"
#include "support/ManualClock.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <ostream>

/// How a client connects to the site and how it authenticates.
struct Road
{
    const char *name;
    std::optional<Certificates::Kind> certificate;
    bool hasEmail = true;
};

inline void PrintTo(const Road &road, std::ostream *stream)
{
    *stream << road.name;
}

/// Tests a client with the simulated site, which checks what the client sends and provides realistic responses. Runs
/// over TCP with e-mail and token, and over TLS with a personal token.
class SiteClientTest : public testing::TestWithParam<Road>
{
protected:
    /// Waits for the result of an operation and returns it; throws its failure.
    template <typename T>
    static T resultOf(QCoro::Task<T> task)
    {
        const TaskResult<T> result(std::move(task));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); })) << "the operation never ended";
        return result.value();
    }

    /// The keys of the issues, in the same order.
    static QStringList keysOf(const IssueList &issues)
    {
        QStringList keys;
        for (const SharedIssue &issue : issues)
            keys += issue->key;
        return keys;
    }
    /// The keys of all issues of the site for which `fits` is true.
    template <typename Fits>
    QSet<QString> siteKeys(Fits fits)
    {
        QSet<QString> keys;
        for (const SiteIssue &issue : simulated.site().issues()) {
            if (fits(issue))
                keys += issue.key;
        }
        return keys;
    }
    QString categoryOf(const SiteIssue &issue) { return simulated.site().statusOf(issue).category; }
    const SiteIssue &stored(const QString &key) { return *simulated.site().issue(key); }
    /// The key of an issue for which `fits` is true.
    template <typename Fits>
    QString keyWhere(Fits fits)
    {
        for (const SiteIssue &issue : simulated.site().issues()) {
            if (fits(issue))
                return issue.key;
        }
        ADD_FAILURE() << "the site has no such issue";
        return {};
    }
    QUrl writtenFile(const QString &name, const QByteArray &content)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return QUrl::fromLocalFile(file.fileName());
    }

    const Certificates::TrustedAuthority trusted;
    QTemporaryDir folder;
    ManualClock clock;
    SimulatedSite simulated{SiteSeed::company(300, clock.now()), GetParam().certificate};
    ManualCalendar calendar;
    JiraClient client{JiraCredentials{simulated.url(),
                                      GetParam().hasEmail ? simulated.site().email : QString(),
                                      simulated.site().token},
                      clock, calendar, folder.filePath(QStringLiteral("cache"))};
};
