#include "model/RawValues.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The stored texts in the order of the cases. Each is also checked to convert back to its case.
template <typename E>
QStringList storedTexts()
{
    QStringList texts;
    for (const auto &row : rawValues<E>()) {
        EXPECT_EQ(int(row.value), texts.size());
        EXPECT_EQ(rawValue(row.value), row.text);
        EXPECT_EQ(fromRawValue<E>(QString(row.text)), row.value);
        texts << row.text;
    }
    return texts;
}

TEST(RawValues, StayAsTheyWereStored)
{
    EXPECT_EQ(storedTexts<ProjectView>(), (QStringList{u"all"_s, u"active"_s, u"backlog"_s}));
    EXPECT_EQ(storedTexts<ActivityRange>(), (QStringList{u"week"_s, u"month"_s}));
    EXPECT_EQ(storedTexts<Ordering>(),
              (QStringList{u"priority"_s, u"updated"_s, u"created"_s, u"key"_s, u"manual"_s}));
    EXPECT_EQ(storedTexts<Grouping>(),
              (QStringList{u"status"_s, u"assignee"_s, u"priority"_s, u"project"_s, u"none"_s}));
    EXPECT_EQ(storedTexts<LayoutMode>(), (QStringList{u"list"_s, u"board"_s}));
    EXPECT_EQ(storedTexts<AppearanceMode>(), (QStringList{u"system"_s, u"light"_s, u"dark"_s}));
    EXPECT_EQ(storedTexts<RowDensity>(), (QStringList{u"comfortable"_s, u"compact"_s}));
    EXPECT_EQ(storedTexts<AccentChoice>(),
              (QStringList{u"indigo"_s, u"blue"_s, u"purple"_s, u"pink"_s, u"orange"_s, u"green"_s,
                           u"graphite"_s}));
}

TEST(RawValues, UnknownTextsHaveNoCase)
{
    EXPECT_EQ(fromRawValue<LayoutMode>(u"grid"), std::nullopt);
    EXPECT_EQ(fromRawValue<LayoutMode>(u"List"), std::nullopt);
    EXPECT_EQ(fromRawValue<LayoutMode>(u""), std::nullopt);
}

TEST(EnumValues, StayAsOtherCodeReliesOnThem)
{
    EXPECT_EQ(int(StatusCategory::Backlog), 0);
    EXPECT_EQ(int(StatusCategory::Todo), 1);
    EXPECT_EQ(int(StatusCategory::InProgress), 2);
    EXPECT_EQ(int(StatusCategory::Done), 3);
    EXPECT_EQ(int(StatusCategory::Cancelled), 4);
    EXPECT_EQ(int(PriorityLevel::Urgent), 0);
    EXPECT_EQ(int(PriorityLevel::High), 1);
    EXPECT_EQ(int(PriorityLevel::Medium), 2);
    EXPECT_EQ(int(PriorityLevel::Low), 3);
    EXPECT_EQ(int(PriorityLevel::None), 4);
}

} // namespace
