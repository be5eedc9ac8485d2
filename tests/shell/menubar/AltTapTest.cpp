#include "shell/menubar/AltTap.h"

#include <gtest/gtest.h>

TEST(AltTap, AltPressedAndReleasedAloneIsATap)
{
    AltTap tap;
    tap.keyPressed(Qt::Key_Alt, Qt::AltModifier);
    EXPECT_TRUE(tap.keyReleased(Qt::Key_Alt));
    EXPECT_FALSE(tap.keyReleased(Qt::Key_Alt));
}

TEST(AltTap, AKeyInBetweenMakesItAShortcut)
{
    AltTap tap;
    tap.keyPressed(Qt::Key_Alt, Qt::AltModifier);
    tap.keyPressed(Qt::Key_1, Qt::AltModifier);
    tap.keyReleased(Qt::Key_1);
    EXPECT_FALSE(tap.keyReleased(Qt::Key_Alt));
}

TEST(AltTap, WithAnotherModifierHeldItIsNone)
{
    AltTap tap;
    tap.keyPressed(Qt::Key_Alt, Qt::AltModifier | Qt::ControlModifier);
    EXPECT_FALSE(tap.keyReleased(Qt::Key_Alt));
    tap.keyPressed(Qt::Key_Alt, Qt::AltModifier);
    tap.keyPressed(Qt::Key_Shift, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_FALSE(tap.keyReleased(Qt::Key_Alt));
}

TEST(AltTap, AClickOrTheLossOfTheFocusInterruptsIt)
{
    AltTap tap;
    tap.keyPressed(Qt::Key_Alt, Qt::NoModifier);
    tap.interrupt();
    EXPECT_FALSE(tap.keyReleased(Qt::Key_Alt));
}
