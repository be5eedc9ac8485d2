#include "app/IssueAddress.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::optional<QUrl> page(const QString &key)
{
    return QUrl(u"https://orvantis.example/browse/"_s + key);
}

QString keyOf(const QString &address)
{
    return IssueAddress::keyOf(address, page).value_or(QString());
}

TEST(IssueAddressTest, TheSchemeOfTheProgramNamesAnIssue)
{
    EXPECT_EQ(keyOf(u"velmora:WEB-12"_s), u"WEB-12"_s);
    EXPECT_EQ(keyOf(u"VELMORA:web_2-1"_s), u"WEB_2-1"_s);
}

TEST(IssueAddressTest, ThePageOfAnIssueOnTheSiteNamesIt)
{
    EXPECT_EQ(keyOf(u"https://orvantis.example/browse/WEB-12"_s), u"WEB-12"_s);
}

TEST(IssueAddressTest, ALinkToACommentNamesItsIssue)
{
    EXPECT_EQ(keyOf(u"https://orvantis.example/browse/WEB-12?focusedCommentId=1#comment-1"_s),
              u"WEB-12"_s);
}

class HostileAddress : public testing::TestWithParam<QString>
{
};

TEST_P(HostileAddress, NamesNoIssue)
{
    EXPECT_EQ(keyOf(GetParam()), QString());
}

INSTANTIATE_TEST_SUITE_P(
    Each, HostileAddress,
    testing::Values(u""_s, u"WEB-12"_s, u"velmora:"_s, u"velmora:../../x"_s, u"velmora:../WEB-12"_s,
                    u"velmora://WEB-12"_s, u"velmora:WEB-12?a=b"_s, u"velmora:WEB-12#x"_s,
                    u"velmora:WEB-12\n"_s, u"velmora:WEB-0"_s, u"velmora:WEB-12345678901"_s,
                    u"velmora:WEB-١٢"_s, u"velmora:WEB%2D12"_s, u"--version"_s,
                    u"file:///browse/WEB-12"_s, u"https://other.example/browse/WEB-12"_s,
                    u"http://orvantis.example/browse/WEB-12"_s,
                    u"https://orvantis.example:8443/browse/WEB-12"_s,
                    u"https://orvantis.example@other.example/browse/WEB-12"_s,
                    u"https://somebody@orvantis.example/browse/WEB-12"_s,
                    u"https://orvantis.example/browse/../browse/WEB-12"_s,
                    u"https://orvantis.example/rest/WEB-12"_s,
                    u"velmora:"_s + QString(10'000, u'A') + u"-1"_s,
                    u"velmora:"_s + QString(1'000, u'A') + u"-1"_s));

} // namespace
