#include "screens/issues/motion/IssueDrag.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Issue issue()
{
    Issue issue;
    issue.key = u"MOB-7"_s;
    issue.summary = u"Égalité a < b & \"c\""_s;
    return issue;
}

} // namespace

TEST(DragContent, CarriesTheKeyAndATitledLink)
{
    const auto content = dragContent(issue(), QUrl(u"https://exemple.net/browse/MOB-7"_s));

    EXPECT_EQ(content.value(u"text/plain"_s), u"MOB-7"_s);
    EXPECT_EQ(content.value(u"text/uri-list"_s), u"https://exemple.net/browse/MOB-7"_s);
    EXPECT_EQ(content.value(u"text/html"_s),
              u"<a href=\"https://exemple.net/browse/MOB-7\">MOB-7 Égalité a &lt; b &amp; "
              "&quot;c&quot;</a>"_s);
}

TEST(DragContent, WithoutAnAddressCarriesTheKeyAlone)
{
    EXPECT_EQ(dragContent(issue(), {}), (QVariantMap{{u"text/plain"_s, u"MOB-7"_s}}));
}
