#include "jira/wire/UserDTO.h"

#include "jira/wire/WireDecoding.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

UserDTO chloe()
{
    return {.accountId = u"5f0c0001"_s,
            .accountType = u"atlassian"_s,
            .displayName = u"Chloé Marchetti"_s,
            .emailAddress = u"chloe@lumen.example"_s,
            .avatarUrls = AvatarUrlsDTO{.large = u"https://lumen.example/48"_s, .medium = {}},
            .active = true};
}

TEST(UserDTO, AUserConvertedTwiceIsTheSame)
{
    const JiraUser expected{.id = u"5f0c0001"_s,
                            .name = u"Chloé Marchetti"_s,
                            .email = u"chloe@lumen.example"_s,
                            .avatarURL = QUrl(u"https://lumen.example/48"_s)};
    EXPECT_EQ(chloe().model(), expected);
    EXPECT_EQ(chloe().model(), expected);
}

TEST(UserDTO, UsersThatDifferInOneFieldStayApart)
{
    UserDTO renamed = chloe();
    renamed.displayName = u"Chloé Marchetti-Roux"_s;
    UserDTO nameless = chloe();
    nameless.displayName.reset();
    UserDTO moved = chloe();
    moved.emailAddress = u"marchetti@lumen.example"_s;
    UserDTO secret = chloe();
    secret.emailAddress.reset();
    UserDTO repainted = chloe();
    repainted.avatarUrls->large = u"https://lumen.example/48?v=2"_s;
    UserDTO small = chloe();
    small.avatarUrls = {.large = {}, .medium = u"https://lumen.example/32"_s};
    UserDTO faceless = chloe();
    faceless.avatarUrls.reset();
    // Each conversion follows one of a user who differs from it in one field.
    const auto after = [](const UserDTO &user) {
        chloe().model();
        return user.model();
    };
    EXPECT_EQ(after(renamed).name, u"Chloé Marchetti-Roux"_s);
    EXPECT_EQ(after(nameless).name, u"Utilisateur inconnu"_s);
    EXPECT_EQ(after(moved).email, u"marchetti@lumen.example"_s);
    EXPECT_EQ(after(secret).email, std::nullopt);
    EXPECT_EQ(after(repainted).avatarURL, QUrl(u"https://lumen.example/48?v=2"_s));
    EXPECT_EQ(after(small).avatarURL, QUrl(u"https://lumen.example/32"_s));
    EXPECT_EQ(after(faceless).avatarURL, std::nullopt);
    EXPECT_EQ(chloe().model().name, u"Chloé Marchetti"_s);
}

TEST(UserDTO, AUserWithEmptyFieldsIsConverted)
{
    EXPECT_EQ(UserDTO().model().name, u"Utilisateur inconnu"_s);
}

/// The address of the picture of a user with these members of "avatarUrls".
std::optional<QUrl> pictureOf(const QByteArray &addresses)
{
    const auto user = decodeWire<UserDTO>(R"({"accountId":"u","avatarUrls":{)" + addresses + "}}");
    return user.value().model().avatarURL;
}

TEST(UserDTO, ThePictureOf48PixelsComesFirstInAnyOrder)
{
    EXPECT_EQ(pictureOf(R"("32x32":"https://a/32","48x48":"https://a/48")"),
              QUrl(u"https://a/48"_s));
    EXPECT_EQ(pictureOf(R"("48x48":"https://a/48","32x32":"https://a/32")"),
              QUrl(u"https://a/48"_s));
    EXPECT_EQ(pictureOf(R"("16x16":"https://a/16","32x32":"https://a/32")"),
              QUrl(u"https://a/32"_s));
    EXPECT_EQ(pictureOf(R"("16x16":"https://a/16")"), std::nullopt);
}

TEST(UserDTO, AnInvalidPictureOf48PixelsIsNotReplaced)
{
    EXPECT_EQ(pictureOf(R"("48x48":"","32x32":"https://a/32")"), std::nullopt);
}

TEST(UserDTO, MoreUsersThanAreRememberedKeepTheirIdentifiers)
{
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 1000; ++i) {
            UserDTO user = chloe();
            user.accountId = QString::number(i);
            ASSERT_EQ(user.model().id, QString::number(i));
        }
    }
}

} // namespace
