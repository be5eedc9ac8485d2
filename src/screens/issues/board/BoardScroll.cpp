#include "screens/issues/board/BoardScroll.h"

#include <algorithm>

namespace {

constexpr double edge = 56;
constexpr double fastest = 14;

} // namespace

double edgeScrollStep(double position, double length)
{
    // Even a short view has a middle zone in which nothing scrolls.
    const double zone = std::min(edge, length / 3);
    if (zone <= 0)
        return 0;
    const double before = std::clamp((zone - position) / zone, 0.0, 1.0);
    const double after = std::clamp((position - (length - zone)) / zone, 0.0, 1.0);
    return fastest * (after - before);
}
