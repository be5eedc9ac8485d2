#include "FrameTable.h"

#include <algorithm>
#include <cstdio>

namespace {

double milliseconds(const std::vector<qint64> &sorted, double share)
{
    return double(sorted.at(std::size_t(share * double(sorted.size() - 1)))) / 1e6;
}

} // namespace

FrameTable::FrameTable(const QString &renderer)
{
    std::printf("Milliseconds to the swapped frame (%s)\n", qUtf8Printable(renderer));
    std::printf("%-34s %5s %7s %7s %7s %7s %7s\n", "", "count", "p50", "p99", "worst", "p50 x",
                "p99 x");
}

void FrameTable::add(const QString &what, std::vector<qint64> nanoseconds)
{
    std::ranges::sort(nanoseconds);
    const auto median = milliseconds(nanoseconds, 0.5);
    const auto late = milliseconds(nanoseconds, 0.99);
    if (m_median == 0) {
        m_median = median;
        m_late = late;
    }
    std::printf("%-34s %5zu %7.2f %7.2f %7.2f %7.2f %7.2f\n", qUtf8Printable(what),
                nanoseconds.size(), median, late, milliseconds(nanoseconds, 1), median / m_median,
                late / m_late);
    std::fflush(stdout);
}
