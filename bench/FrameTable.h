#pragma once

#include <QString>

#include <vector>

/// A table of durations on the standard output. Each row is compared with the first one.
class FrameTable
{
public:
    explicit FrameTable(const QString &renderer);
    /// Prints the median, the 99th percentile and the maximum in milliseconds, and the first two also as multiples of
    /// those of the first row.
    void add(const QString &what, std::vector<qint64> nanoseconds);

private:
    double m_median = 0;
    double m_late = 0;
};
