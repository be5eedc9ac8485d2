#include "screens/Bench.h"
#include "screens/options/OptionIconValue.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString view =
    u"import Velmora.Options\nOptionIconView { property QtObject o: QtObject { id: "
    "o; property optionIcon icon } icon: o.icon }"_s;

IssueType bug()
{
    IssueType type;
    type.name = u"Bug"_s;
    return type;
}

Project website()
{
    Project project;
    project.key = u"WEB"_s;
    project.name = u"Site"_s;
    return project;
}

JiraUser noam()
{
    JiraUser user;
    user.id = u"noam"_s;
    user.name = u"Noam Levy"_s;
    return user;
}

QList<OptionIcon> icons()
{
    return {{IssueStatus(u"3"_s, u"En cours"_s, u"indeterminate"_s)},
            {PriorityLevel::High},
            {OptionIcon::User{}},
            {OptionIcon::User{noam()}},
            {OptionIcon::Label{u"ios"_s}},
            {bug()},
            {website()},
            {OptionIcon::Symbol{u"gear"_s}}};
}

QImage pictureOf(Bench &bench, QQuickItem *item, const OptionIcon &icon)
{
    item->setProperty("icon", QVariant::fromValue(OptionIconValue(icon)));
    return bench.window().grabWindow().copy(0, 0, 20, 20);
}

/// The icon as drawn by a new item that has never shown another one.
QImage freshPictureOf(const OptionIcon &icon)
{
    Bench bench;
    auto *item = bench.show(view);
    return item ? pictureOf(bench, item, icon) : QImage();
}

} // namespace

TEST(OptionIconView, AnIconThatTakesThePlaceOfAnotherLooksAsIfItHadBeenThereAlways)
{
    Bench bench;
    auto *item = bench.show(view);
    ASSERT_NE(item, nullptr) << bench.warnings();
    const QImage nothing = pictureOf(bench, item, {});
    QList<QImage> seen{nothing};
    for (int round = 0; round < 2; ++round) {
        for (const auto &icon : icons()) {
            const QImage picture = pictureOf(bench, item, icon);
            EXPECT_EQ(picture, freshPictureOf(icon)) << icon.value.index();
            EXPECT_EQ(seen.contains(picture), round == 1) << icon.value.index();
            seen.append(picture);
        }
    }
    EXPECT_EQ(pictureOf(bench, item, {}), nothing);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(OptionIconView, APictureSaysWhatItMeansAndASymbolNothing)
{
    Bench bench;
    auto *item = bench.show(view);
    ASSERT_NE(item, nullptr) << bench.warnings();
    const auto meaning = [&](const OptionIcon &icon) {
        pictureOf(bench, item, icon);
        return item->property("meaning").toString();
    };
    EXPECT_EQ(meaning(icons()[0]), u"En cours"_s);
    EXPECT_EQ(meaning(icons()[1]), u"Haute"_s);
    EXPECT_EQ(meaning(icons()[5]), u"Bug"_s);
    EXPECT_EQ(meaning(icons()[6]), u"Site"_s);
    EXPECT_EQ(meaning(icons()[7]), QString());
}
