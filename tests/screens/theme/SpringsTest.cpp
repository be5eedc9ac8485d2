#include "screens/theme/Springs.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

/// The motion of a spring of mass 1 that is released at 0 and pulls towards 1. Times are in units of its response.
struct Spring
{
    double damping = 1;

    double at(double time) const
    {
        constexpr double pull = 2 * std::numbers::pi;
        const double fall = std::exp(-damping * pull * time);
        if (damping >= 1)
            return 1 - fall * (1 + pull * time);
        const double swing = pull * std::sqrt(1 - damping * damping);
        return 1 -
               fall * (std::cos(swing * time) + damping * pull / swing * std::sin(swing * time));
    }
};

struct Case
{
    const char *name;
    QEasingCurve curve;
    Spring spring;
    /// The duration of the curve, in responses of the spring.
    double length;
};

void PrintTo(const Case &value, std::ostream *out)
{
    *out << value.name;
}

} // namespace

class SpringCurve : public testing::TestWithParam<Case>
{
};

INSTANTIATE_TEST_SUITE_P(Springs, SpringCurve,
                         testing::Values(Case{"even", Springs::even(), {0.85}, 1.14},
                                         Case{"soft", Springs::soft(), {0.7}, 1.13},
                                         Case{"firm", Springs::firm(), {1}, 1.22}),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_P(SpringCurve, IsWithinAHundredthOfTheSpringThatItStandsFor)
{
    const auto &[name, curve, spring, length] = GetParam();
    for (int i = 0; i <= 200; ++i) {
        const double progress = i / 200.0;
        EXPECT_NEAR(curve.valueForProgress(progress), spring.at(progress * length), 0.01)
            << progress;
    }
}

TEST_P(SpringCurve, EndsWhereItShouldAndOvershootsAsMuchAsTheSpring)
{
    const auto &[name, curve, spring, length] = GetParam();
    double highest = 0;
    for (int i = 0; i <= 200; ++i)
        highest = std::max(highest, curve.valueForProgress(i / 200.0));
    const double damping = spring.damping;
    const double overshoot =
        damping < 1 ? std::exp(-std::numbers::pi * damping / std::sqrt(1 - damping * damping)) : 0;
    EXPECT_NEAR(highest, 1 + overshoot, 0.003);
    EXPECT_DOUBLE_EQ(curve.valueForProgress(1), 1);
    EXPECT_DOUBLE_EQ(curve.valueForProgress(0), 0);
}
