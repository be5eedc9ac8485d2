#include "simulator/SimulatedSite.h"

#include "simulator/SiteSeed.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDateTime now({2026, 10, 29}, {13, 32}, Qt::UTC);

class SimulatedSiteTest : public testing::TestWithParam<bool>
{
protected:
    /// Sends a request with the given credentials and does not follow redirects.
    std::unique_ptr<QNetworkReply> get(const QUrl &url, const QByteArray &authorization)
    {
        QNetworkRequest request(url);
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                             QNetworkRequest::ManualRedirectPolicy);
        if (!authorization.isEmpty())
            request.setRawHeader("Authorization", authorization);
        std::unique_ptr<QNetworkReply> reply(manager.get(request));
        EXPECT_TRUE(QTest::qWaitFor([&] { return reply->isFinished(); }, 5000));
        return reply;
    }

    QUrl rest(const QString &path)
    {
        return QUrl(simulated.url().toString() + u"/rest/api/3/"_s + path);
    }
    static int statusOf(const QNetworkReply &reply)
    {
        return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    }

    const Certificates::TrustedAuthority trusted;
    SimulatedSite simulated{SiteSeed::company(30, now),
                            GetParam() ? std::optional(Certificates::Kind::Good) : std::nullopt};
    QNetworkAccessManager manager;
};

INSTANTIATE_TEST_SUITE_P(PlainAndTls, SimulatedSiteTest, testing::Bool());

TEST_P(SimulatedSiteTest, ItAnswersAsTheSiteAndKeepsAJournal)
{
    const auto reply = get(rest(u"myself"_s), "Bearer jeton-de-test");
    EXPECT_EQ(statusOf(*reply), 200);
    EXPECT_TRUE(reply->readAll().contains("Camille"));
    ASSERT_EQ(simulated.journal().size(), 1);
    EXPECT_EQ(simulated.journal().first().target, "/rest/api/3/myself");
}

TEST_P(SimulatedSiteTest, AFileIsOnTheOtherOrigin)
{
    Site &site = simulated.site();
    const QString id = site.attach(*site.issue(site.issues().first().key),
                                   {.mimeType = u"text/plain"_s, .content = "abc"})
                           .id;
    const auto redirect = get(rest(u"attachment/content/"_s + id), "Bearer jeton-de-test");
    const QUrl place = redirect->header(QNetworkRequest::LocationHeader).toUrl();
    EXPECT_EQ(place.port(), simulated.files().port());
    EXPECT_EQ(get(place, {})->readAll(), "abc");
    EXPECT_EQ(simulated.files().journal().size(), 1);
}

TEST_P(SimulatedSiteTest, AFaultConcernsItsOperationUntilItRecovers)
{
    simulated.answer(SiteOperation::Priorities, RawAnswer::http(503, {}));
    EXPECT_EQ(statusOf(*get(rest(u"priority"_s), "Bearer jeton-de-test")), 503);
    EXPECT_EQ(statusOf(*get(rest(u"priority/search"_s), "Bearer jeton-de-test")), 200);
    simulated.recover();
    EXPECT_EQ(statusOf(*get(rest(u"priority"_s), "Bearer jeton-de-test")), 200);
}

TEST_P(SimulatedSiteTest, ASearchFindsWhatWasThereBeforeItsLag)
{
    QDateTime time = now;
    Site &site = simulated.site();
    site.now = [&time] { return time; };
    site.searchLag = std::chrono::seconds(60);
    const QString key = site.issues().first().key;
    const QByteArray credentials = "Bearer jeton-de-test";
    const auto send = [&](const QByteArray &method, const QString &path, const QByteArray &body) {
        QNetworkRequest request(rest(path));
        request.setRawHeader("Authorization", credentials);
        request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
        std::unique_ptr<QNetworkReply> reply(manager.sendCustomRequest(request, method, body));
        EXPECT_TRUE(QTest::qWaitFor([&] { return reply->isFinished(); }, 5000));
        return reply->readAll();
    };
    const auto found = [&] {
        return send("POST", u"search/jql"_s,
                    "{\"jql\":\"project = " + key.section(u'-', 0, 0).toUtf8() +
                        "\",\"fields\":[\"summary\"]}");
    };
    ASSERT_TRUE(found().contains("summary"));
    send("PUT", u"issue/"_s + key, R"({"fields":{"summary":"Titre neuf"}})");

    EXPECT_TRUE(get(rest(u"issue/"_s + key), credentials)->readAll().contains("Titre neuf"));
    EXPECT_FALSE(found().contains("Titre neuf"));
    time = time.addSecs(61);
    EXPECT_TRUE(found().contains("Titre neuf"));
}

} // namespace
