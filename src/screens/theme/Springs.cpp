#include "screens/theme/Springs.h"

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// A spring of mass 1 that is released at 0 and pulls towards 1. Times are in units of its response.
struct Spring
{
    double damping = 1;
    /// The end of the curve: the remaining distance is then below 0.25 %.
    double length = 1;

    static constexpr double pull = 2 * std::numbers::pi;

    double swing() const { return pull * std::sqrt(std::max(0.0, 1 - damping * damping)); }
    double place(double time) const
    {
        const double fall = std::exp(-damping * pull * time);
        if (swing() == 0)
            return 1 - fall * (1 + pull * time);
        const double phase = swing() * time;
        return 1 - fall * (std::cos(phase) + damping * pull / swing() * std::sin(phase));
    }
    double speed(double time) const
    {
        const double fall = std::exp(-damping * pull * time);
        if (swing() == 0)
            return fall * pull * pull * time;
        return fall * pull * pull / swing() * std::sin(swing() * time);
    }
};

/// The spring as a curve of cubic pieces that match its positions and speeds where they meet.
QEasingCurve curveOf(const Spring &spring)
{
    constexpr int pieces = 8;
    constexpr double step = 1.0 / pieces;
    const auto tangent = [&](double progress) {
        return QPointF(step / 3, spring.speed(progress * spring.length) * spring.length * step / 3);
    };
    QEasingCurve curve(QEasingCurve::BezierSpline);
    QPointF from;
    for (int i = 1; i < pieces; ++i) {
        const double progress = i * step;
        const QPointF to(progress, spring.place(progress * spring.length));
        curve.addCubicBezierSegment(from + tangent(progress - step), to - tangent(progress), to);
        from = to;
    }
    const QPointF rest(1, 1);
    curve.addCubicBezierSegment(from + tangent(1 - step), rest - QPointF(step / 3, 0), rest);
    return curve;
}

} // namespace

QEasingCurve Springs::even()
{
    static const QEasingCurve curve = curveOf({0.85, 1.14});
    return curve;
}

QEasingCurve Springs::soft()
{
    static const QEasingCurve curve = curveOf({0.7, 1.13});
    return curve;
}

QEasingCurve Springs::firm()
{
    static const QEasingCurve curve = curveOf({1, 1.22});
    return curve;
}
