#pragma once

#include "demo/DemoService.h"
#include "model/JiraError.h"
#include "support/ManualClock.h"
#include "support/TaskResult.h"

#include <QStringList>

#include <gtest/gtest.h>

/// Where the tests take place: France, with weeks from Monday.
UserCalendar paris();
/// The instant at which the tests' clock stands: Thursday, 29 October 2026, 14:32 in Paris.
QDateTime testNow();
/// An instant of the tests' year, told by the clocks of Paris.
QDateTime inParis(int month, int day, int hour, int minute = 0);

/// Identifiers "1", "2", …
DemoSeed::NewID countingIDs();
/// The seed as of `testNow`.
DemoSeed::Seed testSeed();
/// Waits that always last 80 ms, counted identifiers, and the given folder.
DemoSources steadySources(const QString &folder = {});

/// An open issue of project "T" with the given key, changed an hour ago.
Issue sampleIssue(const QString &key);
DemoSite siteOf(const QList<Issue> &issues);

QStringList keysOf(const IssueList &issues);
/// The words of a text, for long lists of keys.
QStringList words(const char *text);

/// The JiraError::Http that the operation fails with; a failure of the test when it does not.
JiraError::Http httpFailure(const std::function<void()> &operation);

/// A demo on a clock turned by hand.
class DemoServiceFixture : public testing::Test
{
protected:
    static constexpr std::chrono::milliseconds latency{80};

    /// The result of an operation, after its wait.
    template <typename T>
    T settled(QCoro::Task<T> task)
    {
        const TaskResult<T> result(std::move(task));
        m_clock.advance(latency);
        return result.value();
    }
    QStringList list(const IssueScope &scope);

    ManualClock m_clock;
    DemoService m_service{m_clock, paris(), steadySources()};
};
