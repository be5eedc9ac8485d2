#include "shell/onboarding/MeshGradient.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace {

struct Color
{
    double red;
    double green;
    double blue;
};

constexpr std::array Colors = {
    Color{0.11, 0.10, 0.26}, Color{0.20, 0.18, 0.52}, Color{0.10, 0.12, 0.30},
    Color{0.30, 0.22, 0.70}, Color{0.42, 0.45, 0.95}, Color{0.18, 0.30, 0.65},
    Color{0.12, 0.10, 0.28}, Color{0.38, 0.20, 0.62}, Color{0.08, 0.10, 0.22},
};

/// The indices of the first corner of the four quads. The other corners are one to the right and one row down.
constexpr std::array<std::size_t, 4> Quads = {0, 1, 3, 4};

double cross(const QPointF &a, const QPointF &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

double smooth(double x)
{
    return x * x * (3 - 2 * x);
}

bool isWithin(double x)
{
    return x >= -1e-4 && x <= 1.0001;
}

/// The coordinates of a point within a quad, as fractions of its sides: the inverse of the bilinear map of the quad's
/// corners.
class Quad
{
public:
    Quad(const std::array<QPointF, 9> &points, std::size_t first)
        : m_origin(points[first]),
          m_right(points[first + 1] - points[first]),
          m_down(points[first + 3] - points[first]),
          m_skew(points[first] - points[first + 1] + points[first + 4] - points[first + 3])
    {
    }

    QPointF sharesOf(const QPointF &place) const
    {
        const QPointF offset = place - m_origin;
        const double v = downShare(offset);
        const double width = m_right.x() + m_skew.x() * v;
        const double u = std::abs(width) > 1e-6
                             ? (offset.x() - m_down.x() * v) / width
                             : (offset.y() - m_down.y() * v) / (m_right.y() + m_skew.y() * v);
        return {u, v};
    }

private:
    /// The root of a quadratic equation for which the point lies within the quad.
    double downShare(const QPointF &offset) const
    {
        const double square = cross(m_skew, m_down);
        const double linear = cross(m_right, m_down) + cross(offset, m_skew);
        const double constant = cross(offset, m_right);
        if (std::abs(square) < 1e-6)
            return -constant / linear;
        const double root = std::sqrt(std::max(0.0, linear * linear - 4 * constant * square));
        const double first = (-linear - root) / (2 * square);
        return isWithin(first) ? first : (-linear + root) / (2 * square);
    }

    QPointF m_origin;
    QPointF m_right;
    QPointF m_down;
    QPointF m_skew;
};

/// The distance of a point from its quad. 0 inside.
double distance(const QPointF &shares)
{
    return std::max({0.0, -shares.x(), shares.x() - 1, -shares.y(), shares.y() - 1});
}

double mixed(double a, double b, double share)
{
    return a * (1 - share) + b * share;
}

QRgb mixedCorners(std::size_t first, const QPointF &shares)
{
    const double u = smooth(std::clamp(shares.x(), 0.0, 1.0));
    const double v = smooth(std::clamp(shares.y(), 0.0, 1.0));
    const auto channel = [&](double Color::*part) {
        const double top = mixed(Colors[first].*part, Colors[first + 1].*part, u);
        const double bottom = mixed(Colors[first + 3].*part, Colors[first + 4].*part, u);
        return int(std::lround(255 * mixed(top, bottom, v)));
    };
    return qRgb(channel(&Color::red), channel(&Color::green), channel(&Color::blue));
}

QRgb colorIn(const std::array<QPointF, 9> &points, const QPointF &place)
{
    std::size_t nearest = Quads[0];
    QPointF nearestShares;
    double nearestDistance = std::numeric_limits<double>::max();
    for (const std::size_t first : Quads) {
        const QPointF shares = Quad(points, first).sharesOf(place);
        if (distance(shares) < nearestDistance) {
            nearest = first;
            nearestShares = shares;
            nearestDistance = distance(shares);
        }
    }
    return mixedCorners(nearest, nearestShares);
}

} // namespace

std::array<QPointF, 9> MeshGradient::points(double time)
{
    const QPointF middle(0.5 + 0.18 * std::sin(0.45 * time), 0.5 + 0.14 * std::cos(0.38 * time));
    const QPointF bottom(0.5 + 0.12 * std::cos(0.3 * time), 1);
    return {QPointF(0, 0),   QPointF(0.5, 0), QPointF(1, 0), QPointF(0, 0.5), middle,
            QPointF(1, 0.5), QPointF(0, 1),   bottom,        QPointF(1, 1)};
}

QRgb MeshGradient::colorAt(const QPointF &place, double time)
{
    return colorIn(points(time), place);
}

QImage MeshGradient::image(const QSize &size, double time)
{
    const auto controls = points(time);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] = colorIn(controls, {(x + 0.5) / size.width(), (y + 0.5) / size.height()});
    }
    return image;
}
