#include "model/DisplayProperties.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QJsonObject defaultObject()
{
    return QJsonDocument::fromJson(DisplayProperties().toJson()).object();
}

QByteArray bytes(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

TEST(DisplayProperties, ShowAllButTheTypeAtFirst)
{
    const QJsonObject expected{{u"key"_s, true},    {u"priority"_s, true}, {u"type"_s, false},
                               {u"labels"_s, true}, {u"assignee"_s, true}, {u"dueDate"_s, true},
                               {u"updated"_s, true}};
    EXPECT_EQ(defaultObject(), expected);
}

TEST(DisplayProperties, SurviveStoring)
{
    const QStringList names = defaultObject().keys();
    for (const QString &name : names) {
        QJsonObject object = defaultObject();
        object[name] = !object[name].toBool();
        const auto properties = DisplayProperties::fromJson(bytes(object));
        ASSERT_TRUE(properties.has_value()) << name.toStdString();
        EXPECT_NE(*properties, DisplayProperties()) << name.toStdString();
        EXPECT_EQ(DisplayProperties::fromJson(properties->toJson()), properties)
            << name.toStdString();
    }
}

TEST(DisplayProperties, WithAMissingKeyAreNothing)
{
    const QStringList names = defaultObject().keys();
    for (const QString &name : names) {
        QJsonObject object = defaultObject();
        object.remove(name);
        EXPECT_EQ(DisplayProperties::fromJson(bytes(object)), std::nullopt) << name.toStdString();
    }
}

TEST(DisplayProperties, WithAValueThatIsNoBooleanAreNothing)
{
    for (const QJsonValue &value : {QJsonValue(1), QJsonValue(u"true"_s), QJsonValue()}) {
        QJsonObject object = defaultObject();
        object[u"labels"_s] = value;
        EXPECT_EQ(DisplayProperties::fromJson(bytes(object)), std::nullopt);
    }
}

TEST(DisplayProperties, WithAKeyTooManyAreReadAsUsual)
{
    QJsonObject object = defaultObject();
    object[u"reporter"_s] = 3;
    EXPECT_EQ(DisplayProperties::fromJson(bytes(object)), DisplayProperties());
}

TEST(DisplayProperties, OfBrokenBytesAreNothing)
{
    EXPECT_EQ(DisplayProperties::fromJson({}), std::nullopt);
    EXPECT_EQ(DisplayProperties::fromJson("[]"), std::nullopt);
    EXPECT_EQ(DisplayProperties::fromJson(DisplayProperties().toJson().chopped(1)), std::nullopt);
}

} // namespace
