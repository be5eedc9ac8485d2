#include "screens/kit/drawn/IconAddresses.h"

#include "screens/Pixels.h"
#include "screens/kit/painters/AvatarPainter.h"
#include "screens/kit/painters/BadgePainter.h"
#include "screens/kit/providers/Canvas.h"
#include "screens/kit/providers/IconProvider.h"
#include "screens/theme/IdentityColors.h"

#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The id that Qt Quick passes to an image provider for a URL.
QString idOf(const QUrl &url)
{
    return url.toString(QUrl::RemoveScheme | QUrl::RemoveAuthority).mid(1);
}

QImage drawn(const QUrl &url, QSize pixels = {})
{
    IconProvider provider;
    return provider.requestImage(idOf(url), nullptr, pixels);
}

JiraUser person(const QString &name)
{
    return {.id = u"noam"_s, .name = name, .email = std::nullopt, .avatarURL = std::nullopt};
}

Project project(const QString &key, const QString &name)
{
    Project made;
    made.key = key;
    made.name = name;
    return made;
}

} // namespace

TEST(IconAddresses, AddressGivesTheDrawingOfTheValues)
{
    const IconAddresses pictures;
    const auto expected = Pixels::painted(18, 2, [](QPainter &painter) {
        paintAvatar(painter, QColor(IdentityColors::person(u"noam").rgb()), u"NT"_s, 18);
    });
    EXPECT_EQ(drawn(pictures.avatar(person(u"Noam Talvère"_s), 18), {36, 36}), expected);
}

TEST(IconAddresses, SignsInATextDoNotEndIt)
{
    const IconAddresses pictures;
    for (const auto &name :
         {u"&"_s, u"#"_s, u"%"_s, u"="_s, u"/"_s, u"é"_s, u"?"_s, u"+"_s, u"日"_s}) {
        const auto address = parsedAddress(idOf(pictures.project(project(u"K"_s, name), 16)));
        EXPECT_EQ(address.text(u"t"_s), badgeLetter(name)) << name.toStdString();
        EXPECT_EQ(address.number(u"s"_s), 16) << name.toStdString();
    }
}

TEST(IconAddresses, ProjectsOfOneKeyShareTheColourAndNotTheLetter)
{
    const IconAddresses pictures;
    const auto first = drawn(pictures.project(project(u"MOB"_s, u"app mobile"_s), 64));
    const auto second = drawn(pictures.project(project(u"MOB"_s, u"Mobile"_s), 64));
    EXPECT_EQ(first.pixel(6, 32), second.pixel(6, 32));
    EXPECT_NE(first, second);
}

TEST(IconAddresses, FinishedStatusFollowsTheAccent)
{
    const IconAddresses pictures;
    const IssueStatus done(u"1"_s, u"Terminé"_s, u"done"_s);
    EXPECT_NE(pictures.status(done, 14, Qt::blue), pictures.status(done, 14, Qt::red));
    EXPECT_EQ(drawn(pictures.status(done, 50, Qt::red)).pixelColor(25, 6), QColor(Qt::red));
}

TEST(IconAddresses, FractionalProgressAndSizeSurviveTheAddress)
{
    const IconAddresses pictures;
    const IssueStatus review(u"1"_s, u"En revue"_s, u"indeterminate"_s);
    const auto address = parsedAddress(idOf(pictures.status(review, 12.5, Qt::blue)));
    EXPECT_EQ(address.number(u"s"_s), 12.5);
    EXPECT_EQ(address.number(u"p"_s), review.progress());
    EXPECT_GT(review.progress(), 0.5);
}

TEST(IconAddresses, PriorityNamesAreTheFrenchOnes)
{
    const IconAddresses pictures;
    EXPECT_EQ(pictures.priorityName(PriorityLevel::Urgent), u"Urgente"_s);
    EXPECT_EQ(pictures.priorityName(PriorityLevel::High), u"Haute"_s);
    EXPECT_EQ(pictures.priorityName(PriorityLevel::Medium), u"Moyenne"_s);
    EXPECT_EQ(pictures.priorityName(PriorityLevel::Low), u"Basse"_s);
    EXPECT_EQ(pictures.priorityName(PriorityLevel::None), u"Aucune priorité"_s);
}

TEST(IconProvider, UnknownKindIsEmpty)
{
    EXPECT_TRUE(drawn(QUrl(u"image://icon/nothing?s=14"_s)).isNull());
}
