#include "screens/kit/scrolling/EasedPosition.h"

#include <algorithm>
#include <cmath>

namespace {

/// In this time, in milliseconds, the distance to the target shrinks to 37 %. It shrinks to 5 % in 205 ms, the time in
/// which the list scrolls to its focused row.
constexpr double Decay = 68;
/// In pixels; a smaller distance is invisible.
constexpr double Near = 0.5;

} // namespace

double ScrollBounds::bounded(double position) const
{
    return std::clamp(position, first, std::max(first, last));
}

void EasedPosition::push(double distance, double position, ScrollBounds bounds)
{
    const double left = m_isMoving ? m_target - m_position : 0;
    aim(position + distance + (left * distance > 0 ? left : 0), position, bounds);
}

void EasedPosition::aim(double target, double position, ScrollBounds bounds)
{
    m_position = position;
    m_target = bounds.bounded(target);
    m_isMoving = m_target != m_position;
}

void EasedPosition::advance(int milliseconds, ScrollBounds bounds)
{
    m_target = bounds.bounded(m_target);
    const double left = (m_target - m_position) * std::exp(-milliseconds / Decay);
    m_isMoving = std::abs(left) >= Near;
    m_position = bounds.bounded(m_isMoving ? m_target - left : m_target);
}
