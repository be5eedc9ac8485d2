#pragma once

#include <QJsonObject>

/// The measurements of one start of a program: times relative to its start by the parent process, and the memory that
/// it uses.
class StartReport
{
public:
    /// Reads the time of the start from the first argument, in nanoseconds of `monotonicNow`.
    explicit StartReport(const QStringList &arguments);

    /// Records the time at which this point was reached.
    void mark(const QString &point);
    void mark(const QString &point, qint64 instant);
    /// Prints the marks in nanoseconds, the renderer and the memory as one line of JSON.
    void print(const QString &renderer);

private:
    qint64 m_start;
    QJsonObject m_report;
};
