#pragma once

#include "demo/DemoService.h"
#include "model/JiraError.h"
#include "support/ManualCalendar.h"
#include "support/ManualClock.h"
#include "support/TaskResult.h"

#include <QStringList>

#include <gtest/gtest.h>

/// The calendar of the tests: France, with weeks that begin on Monday.
UserCalendar paris();
/// The initial time of the test clock: Thursday, 29 October 2026, 14:32 in Paris.
QDateTime testNow();
/// An instant in the year of the tests, given as local time in Paris.
QDateTime inParis(int month, int day, int hour, int minute = 0);

/// Identifiers "1", "2", …
DemoSeed::NewID countingIDs();
/// The seed as of `testNow`.
DemoSeed::Seed testSeed();
/// A folder that contains the files of the seed, so that a demo need not draw them. The same in all tests.
QString seededFolder();
/// Sources for which waits always last 80 ms, with counted identifiers and the given folder.
DemoSources steadySources(const QString &folder = seededFolder());

/// An open issue of project "T" with the given key, changed one hour before `testNow`.
Issue sampleIssue(const QString &key);
DemoSite siteOf(const QList<Issue> &issues);

QStringList keysOf(const IssueList &issues);
/// Splits a text into words; used for long lists of keys.
QStringList words(const char *text);

/// The `JiraError::Http` that the operation fails with; the test fails if the operation does not.
JiraError::Http httpFailure(const std::function<void()> &operation);

/// A demo with a clock that the test advances.
class DemoServiceFixture : public testing::Test
{
protected:
    static constexpr std::chrono::milliseconds latency{80};

    /// Advances the clock past the wait of an operation and returns its result.
    template <typename T>
    T settled(QCoro::Task<T> task)
    {
        const TaskResult<T> result(std::move(task));
        m_clock.advance(latency);
        return result.value();
    }
    QStringList list(const IssueScope &scope);

    ManualClock m_clock;
    ManualCalendar m_calendar;
    DemoService m_service{m_clock, m_calendar, steadySources()};
};
