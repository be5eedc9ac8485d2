#include "ClientTest.h"

using namespace Qt::StringLiterals;

namespace {

using JiraClientTest = ClientTest;

TEST_F(JiraClientTest, AsksWhoTheUserIs)
{
    server.answer(
        RawAnswer::json(R"({"accountId":"u1","displayName":"Alice Martin","x":{"y":[1]}})"));
    const JiraUser user = resultOf(client->currentUser());
    EXPECT_EQ(user.id, u"u1"_s);
    EXPECT_EQ(user.name, u"Alice Martin"_s);
    EXPECT_EQ(asked(), QStringList{u"GET /rest/api/3/myself"_s});
    EXPECT_EQ(lastRequest().header("Accept"), "application/json");
    EXPECT_TRUE(lastRequest().header("Content-Type").isNull());
    EXPECT_EQ(lastRequest().header("Authorization"),
              "Basic " + QByteArray("alice@exemple.fr:s3cret").toBase64());
}

TEST_F(JiraClientTest, ATokenWithoutAnEmailGoesAsABearer)
{
    connectAs({server.url(), {}, u"pat"_s});
    server.answer(RawAnswer::json(R"({"accountId":"u1"})"));
    resultOf(client->currentUser());
    EXPECT_EQ(lastRequest().header("Authorization"), "Bearer pat");
}

} // namespace
