#include "screens/theme/Fonts.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    // Text widths can only be measured with fonts.
    const QGuiApplication application(argc, argv);
    if (!Fonts::load())
        return 2;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
