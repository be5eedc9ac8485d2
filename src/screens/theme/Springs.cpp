#include "screens/theme/Springs.h"

#include <QPointF>

namespace {

QEasingCurve throughBezier(QPointF first, QPointF second)
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(first, second, {1, 1});
    return curve;
}

} // namespace

QEasingCurve Springs::even()
{
    return throughBezier({0.24, 0.21}, {0.14, 1.16});
}

QEasingCurve Springs::soft()
{
    return throughBezier({0.30, 0.35}, {0.11, 1.28});
}

QEasingCurve Springs::firm()
{
    return throughBezier({0.22, 0.20}, {0.12, 1.04});
}
