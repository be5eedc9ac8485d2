#include "richtext/LinearTime.h"

#include <algorithm>
#include <ctime>
#include <gtest/gtest.h>
#include <limits>

namespace {

/// The processor time of this thread, which excludes the work of other programs.
double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

double seconds(const std::function<void()> &work)
{
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

} // namespace

void expectLinear(const PreparedWork &prepare, qsizetype size)
{
    constexpr double bound = 8;
    constexpr double measurable = 0.0005;
    constexpr int fewest = 4;
    // A busy machine took the caches from twelve rounds in a row. No number of rounds makes quadratic work linear.
    constexpr int most = 200;
    const auto work = prepare(size);
    const auto longWork = prepare(4 * size);
    double once = std::numeric_limits<double>::infinity();
    double longer = once;
    double ratio = once;
    for (int round = 0; round < most && (round < fewest || ratio >= bound); ++round) {
        once = std::min(once, seconds(work));
        longer = std::min(longer, seconds(longWork));
        ratio = longer / std::max(once, measurable);
    }
    if (ratio < bound)
        return;
    ADD_FAILURE() << "four times the input takes " << ratio << " times as long";
}
