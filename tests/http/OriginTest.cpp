#include "http/Origin.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Origin origin(const QString &url)
{
    return Origin::of(QUrl(url));
}

TEST(Origin, PathQueryAndUserAreNoPartOfIt)
{
    EXPECT_EQ(origin(u"https://site.fr"_s), origin(u"https://paul@site.fr/a?b#c"_s));
}

TEST(Origin, ThePortOfTheSchemeNeedNotBeNamed)
{
    EXPECT_EQ(origin(u"https://site.fr"_s), origin(u"https://site.fr:443"_s));
    EXPECT_EQ(origin(u"http://site.fr"_s), origin(u"http://site.fr:80"_s));
}

TEST(Origin, CaseOfSchemeAndHostDoesNotMatter)
{
    EXPECT_EQ(origin(u"HTTPS://SITE.fr"_s), origin(u"https://site.FR"_s));
}

TEST(Origin, SchemeHostAndPortAllCount)
{
    const Origin site = origin(u"https://site.fr"_s);
    for (const QString &other :
         {u"http://site.fr:443"_s, u"https://site.fr:444"_s, u"https://a.site.fr"_s,
          u"https://fr"_s, u"https://site.fr."_s, u"https://site.fr.evil.com"_s})
        EXPECT_NE(origin(other), site) << other.toStdString();
}

} // namespace
