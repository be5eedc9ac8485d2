#include "update/ReleaseInfo.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Required = R"("version":"1.5","build":"122","url":"a.zip","sha256":"ab")";

QByteArray withRequired(const QByteArray &members)
{
    return QByteArray("{") + Required + members + '}';
}

std::string failureOf(const QByteArray &json)
{
    const auto release = ReleaseInfo::decoded(json);
    return release ? "" : release.error().message().toStdString();
}

TEST(ReleaseInfoTest, ReadsEveryMember)
{
    const auto release = ReleaseInfo::decoded(
        withRequired(R"(,"size":12345678901,"minimumSystemVersion":"2.36","publishedAt":"hier",)"
                     R"("notes":"Des **nouveautés**\nen français")"));
    ASSERT_TRUE(release);
    EXPECT_EQ(release->version, u"1.5"_s);
    EXPECT_EQ(release->build, u"122"_s);
    EXPECT_EQ(release->url, u"a.zip"_s);
    EXPECT_EQ(release->sha256, u"ab"_s);
    EXPECT_EQ(release->size, 12345678901);
    EXPECT_EQ(release->minimumSystemVersion, u"2.36"_s);
    EXPECT_EQ(release->publishedAt, u"hier"_s);
    EXPECT_EQ(release->notes, u"Des **nouveautés**\nen français"_s);
}

TEST(ReleaseInfoTest, OptionalMembersMayBeAbsentOrNull)
{
    for (const QByteArray &members :
         {QByteArray(), QByteArray(R"(,"size":null,"minimumSystemVersion":null,"notes":null)")}) {
        const auto release = ReleaseInfo::decoded(withRequired(members));
        ASSERT_TRUE(release);
        EXPECT_FALSE(release->size || release->minimumSystemVersion || release->publishedAt ||
                     release->notes);
    }
}

TEST(ReleaseInfoTest, UnknownMembersAreIgnored)
{
    EXPECT_TRUE(ReleaseInfo::decoded(withRequired(R"(,"channel":{"beta":[1,2]})")));
}

TEST(ReleaseInfoTest, AMissingRequiredMemberFails)
{
    for (const char *key : {"version", "build", "url", "sha256"}) {
        const QByteArray json = withRequired({}).replace('"' + QByteArray(key) + '"', R"("other")");
        EXPECT_EQ(failureOf(json), "La description de la mise à jour est illisible : « " +
                                       std::string(key) + " » manque.");
    }
}

TEST(ReleaseInfoTest, AMemberOfTheWrongTypeFails)
{
    const auto wrong = [](const std::string &key) {
        return "La description de la mise à jour est illisible : « " + key +
               " » n'a pas le type attendu.";
    };
    EXPECT_EQ(failureOf(R"({"version":"1.5","build":122,"url":"a","sha256":"b"})"), wrong("build"));
    EXPECT_EQ(failureOf(R"({"version":null,"build":"1","url":"a","sha256":"b"})"),
              wrong("version"));
    EXPECT_EQ(failureOf(withRequired(R"(,"size":"12")")), wrong("size"));
    EXPECT_EQ(failureOf(withRequired(R"(,"size":1.5)")), wrong("size"));
    EXPECT_EQ(failureOf(withRequired(R"(,"notes":["a"])")), wrong("notes"));
}

TEST(ReleaseInfoTest, OnlyAnObjectIsARelease)
{
    for (const char *json : {"", "[]", "null", "\"text\"", "{", "<html></html>", "\xff\xfe"})
        EXPECT_EQ(failureOf(json),
                  "La description de la mise à jour est illisible : ce n'est pas un objet JSON.");
}

TEST(ReleaseInfoTest, WhatIsWrittenIsReadAgain)
{
    ReleaseInfo release{.version = u"1.5 « bêta »"_s,
                        .build = u"12a"_s,
                        .url = u"https://a.example/b?c=d"_s,
                        .sha256 = u"ABCD"_s};
    EXPECT_EQ(ReleaseInfo::decoded(release.encoded()).value(), release);
    release.size = 9007199254740993;
    release.minimumSystemVersion = u""_s;
    release.publishedAt = u"2026-11-22"_s;
    release.notes = u"\"quotes\"\n\u2028"_s;
    EXPECT_EQ(ReleaseInfo::decoded(release.encoded()).value(), release);
}

} // namespace
