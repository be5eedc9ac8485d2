#pragma once

#include "jira/JiraClient.h"
#include "simulator/SimulatedSite.h"
#include "simulator/SiteSeed.h"
#include "support/ManualClock.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <ostream>

/// How a client reaches the site and who it says it is.
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

/// A client on a whole simulated site: what it sends is what the site takes, what the site sends is what it reads. Over
/// TCP with e-mail and token, and over TLS with a personal token.
class SiteClientTest : public testing::TestWithParam<Road>
{
protected:
    /// The result of an operation, waited for; throws what it failed with.
    template <typename T>
    static T resultOf(QCoro::Task<T> task)
    {
        const TaskResult<T> result(std::move(task));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); })) << "the operation never ended";
        return result.value();
    }

    /// The keys of issues, in their order.
    static QStringList keysOf(const IssueList &issues)
    {
        QStringList keys;
        for (const SharedIssue &issue : issues)
            keys += issue->key;
        return keys;
    }
    /// The keys of the site's issues that fit, in no order that matters.
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
    /// An issue of a project that fits.
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
    JiraClient client{
        JiraCredentials{simulated.url(), GetParam().hasEmail ? simulated.site().email : QString(),
                        simulated.site().token},
        clock, UserCalendar{QLocale(QLocale::French, QLocale::France), QTimeZone("Europe/Paris")},
        folder.filePath(QStringLiteral("cache"))};
};
