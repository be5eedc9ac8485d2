#include "screens/theme/Metrics.h"

#include "screens/Bench.h"

#include <QMetaProperty>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Metrics, QmlReadsTheConstantsOfCpp)
{
    Bench bench;
    const auto *item = bench.show(u"Item { width: Metrics.rowEvent; height: Metrics.rowPicker }"_s);
    ASSERT_NE(item, nullptr) << bench.warnings();

    EXPECT_EQ(item->width(), Metrics::rowEvent);
    EXPECT_EQ(item->height(), Metrics::rowPicker);
}

TEST(Metrics, EveryLengthIsAPositiveConstantProperty)
{
    const Metrics metrics;
    const auto &type = Metrics::staticMetaObject;
    ASSERT_GT(type.propertyCount(), type.propertyOffset());
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
        const auto property = type.property(i);
        EXPECT_TRUE(property.isConstant() && !property.isWritable()) << property.name();
        EXPECT_GT(property.read(&metrics).toInt(), 0) << property.name();
    }
}
