#pragma once

#include <QJsonObject>

/// What one start of a program took: instants since its parent started it, and the memory it then holds.
class StartReport
{
public:
    /// Reads the parent's instant, in nanoseconds of `monotonicNow`, from the first argument.
    explicit StartReport(const QStringList &arguments);

    /// Notes when this point was reached.
    void mark(const QString &point);
    void mark(const QString &point, qint64 instant);
    /// Prints the marks in nanoseconds, the renderer and the memory as one line of JSON.
    void print(const QString &renderer);

private:
    qint64 m_start;
    QJsonObject m_report;
};
