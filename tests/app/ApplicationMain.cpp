#include "platform/decoding/helper/DecodeMain.h"

#include <QAccessible>
#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (const auto code = decodeIfAsked(argc, argv))
        return *code;
    const QApplication application(argc, argv);
    QAccessible::setActive(true);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
