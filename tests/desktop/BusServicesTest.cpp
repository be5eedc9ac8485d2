#include "desktop/linux/BusServices.h"

#include "platform/PrivateBus.h"
#include "state/AppStoreFixture.h"
#include "support/RunUntil.h"

#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

const auto Name = u"fr.orvantis.Velmora"_s;
const auto Search = u"org.gnome.Shell.SearchProvider2"_s;
const auto Runner = u"org.kde.krunner1"_s;
const auto Application = u"org.freedesktop.Application"_s;
const QHash<QString, QString> Paths{{Search, u"/fr/orvantis/Velmora/SearchProvider"_s},
                                    {Runner, u"/fr/orvantis/Velmora/Runner"_s},
                                    {Application, u"/fr/orvantis/Velmora"_s}};
constexpr uint Now = 4711;

} // namespace

class BusServicesTest : public AppStoreFixture
{
protected:
    BusServicesTest()
    {
        startSession();
        Issue first = sampleIssue(u"MOB-1"_s);
        first.summary = u"Été"_s;
        reloadWith({first, sampleIssue(u"MOB-12"_s), sampleIssue(u"MOB-3"_s, u"Terminé"_s)});
        services = std::make_unique<BusServices>(bus.connection(u"program"_s), *store);
        spy = std::make_unique<QSignalSpy>(services.get(), &DesktopServices::asked);
        EXPECT_TRUE(runUntil([this] { return owner() == u"program"_s; }));
    }

    /// The name of our connection that has the application's id on the bus.
    QString owner()
    {
        auto question =
            QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                           u"org.freedesktop.DBus"_s, u"GetNameOwner"_s);
        question << Name;
        const QDBusPendingReply<QString> reply = client.asyncCall(question);
        EXPECT_TRUE(runUntil([&] { return reply.isFinished(); }));
        return reply.isError() ? QString() : connections.value(reply.value());
    }
    QDBusMessage call(const QString &interface, const QString &method, const QVariantList &values)
    {
        auto message =
            QDBusMessage::createMethodCall(Name, Paths.value(interface), interface, method);
        message.setArguments(values);
        const QDBusPendingCall pending = client.asyncCall(message);
        EXPECT_TRUE(runUntil([&] { return pending.isFinished(); }));
        return pending.reply();
    }
    template <typename T>
    T value(const QString &interface, const QString &method, const QVariantList &values)
    {
        const QDBusMessage reply = call(interface, method, values);
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
        return qdbus_cast<T>(reply.arguments().value(0));
    }
    QStringList search(const QStringList &terms)
    {
        return value<QStringList>(Search, u"GetInitialResultSet"_s, {terms});
    }
    QList<QVariantMap> metas(const QStringList &ids)
    {
        return value<QList<QVariantMap>>(Search, u"GetResultMetas"_s, {ids});
    }
    QList<RunnerMatch> match(const QString &query)
    {
        return value<QList<RunnerMatch>>(Runner, u"Match"_s, {query});
    }
    QByteArray request(int at) { return spy->value(at).value(1).toByteArray(); }
    Activation activation(int at) { return spy->value(at).value(0).value<Activation>(); }

    PrivateBus bus;
    QDBusConnection client = bus.connection(u"client"_s);
    QHash<QString, QString> connections{{bus.connection(u"program"_s).baseService(), u"program"_s}};
    std::unique_ptr<BusServices> services;
    std::unique_ptr<QSignalSpy> spy;
};

TEST_F(BusServicesTest, TheShellFindsAnIssueAndOpensIt)
{
    const auto ids = search({u"ete"_s});
    ASSERT_EQ(ids.size(), 1);
    const auto found = metas(ids);
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].value(u"id"_s), ids[0]);
    EXPECT_EQ(found[0].value(u"name"_s), u"Été"_s);
    EXPECT_EQ(found[0].value(u"description"_s), u"MOB-1 · À faire"_s);
    call(Search, u"ActivateResult"_s, {ids[0], QStringList(u"ete"_s), Now});
    ASSERT_EQ(spy->count(), 1);
    EXPECT_EQ(request(0), "velmora:MOB-1");
    EXPECT_EQ(activation(0).time(), Now);
}

TEST_F(BusServicesTest, AnotherTermIsLookedForInAllIssues)
{
    const auto ids = search({u"ete"_s});
    EXPECT_EQ(
        value<QStringList>(Search, u"GetSubsearchResultSet"_s, {ids, QStringList(u"mob"_s)}).size(),
        2);
}

TEST_F(BusServicesTest, TheShellOpensThePaletteForMoreResults)
{
    call(Search, u"LaunchSearch"_s, {QStringList(u"x"_s), Now});
    ASSERT_EQ(spy->count(), 1);
    EXPECT_EQ(request(0), "--palette");
}

TEST_F(BusServicesTest, TheShellsHostileCallsOpenNothing)
{
    EXPECT_TRUE(search({}).isEmpty());
    EXPECT_TRUE(search({QString(10'000, u'm')}).isEmpty());
    EXPECT_TRUE(search(QStringList(10'000, u"m"_s)).isEmpty());
    EXPECT_TRUE(metas({}).isEmpty());
    EXPECT_TRUE(metas({u"unknown"_s, QString(), QString(10'000, u'm')}).isEmpty());
    const QString known = search({u"mob-1"_s}).value(0);
    EXPECT_EQ(metas(QStringList(10'000, known)).size(), mostPaletteIssues);
    for (const QString &id : {QString(), u"MOB-1"_s, known + u"9"_s, QString(10'000, u'm')})
        call(Search, u"ActivateResult"_s, {id, QStringList(), Now});
    EXPECT_EQ(call(Search, u"ActivateResult"_s, {7, 8}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(spy->count(), 0);
}

TEST_F(BusServicesTest, ResultsOfASessionThatHasEndedOpenNothing)
{
    const QString earlier = search({u"ete"_s}).value(0);
    store->signOut();
    EXPECT_TRUE(search({u"ete"_s}).isEmpty());
    startSession();
    reloadWith({sampleIssue(u"MOB-1"_s)});
    EXPECT_TRUE(metas({earlier}).isEmpty());
    call(Search, u"ActivateResult"_s, {earlier, QStringList(), Now});
    call(Runner, u"Run"_s, {earlier, QString()});
    EXPECT_EQ(spy->count(), 0);
}

TEST_F(BusServicesTest, KRunnerFindsIssuesAndOpensOne)
{
    const auto matches = match(u" mob "_s);
    ASSERT_EQ(matches.size(), 2);
    EXPECT_EQ(matches[0].text, u"Été"_s);
    EXPECT_EQ(matches[0].properties.value(u"subtext"_s), u"MOB-1 · À faire"_s);
    EXPECT_GT(matches[0].relevance, matches[1].relevance);
    EXPECT_GT(match(u"mob-12"_s).value(0).type, matches[1].type);
    call(Runner, u"SetActivationToken"_s, {u"jeton"_s});
    call(Runner, u"Run"_s, {matches[1].id, QString()});
    ASSERT_EQ(spy->count(), 1);
    EXPECT_EQ(request(0), "velmora:MOB-12");
    EXPECT_EQ(activation(0).token, "jeton");
}

TEST_F(BusServicesTest, ATokenOfKRunnerIsUsedOnce)
{
    const auto id = match(u"ete"_s).value(0).id;
    call(Runner, u"SetActivationToken"_s, {u"jeton"_s});
    call(Runner, u"Run"_s, {id, QString()});
    call(Runner, u"Run"_s, {id, QString()});
    ASSERT_EQ(spy->count(), 2);
    EXPECT_EQ(activation(1), Activation());
}

TEST_F(BusServicesTest, KRunnersHostileCallsOpenNothing)
{
    EXPECT_TRUE(match(QString()).isEmpty());
    EXPECT_TRUE(match(QString(10'000, u'm')).isEmpty());
    EXPECT_TRUE(match(u"m "_s.repeated(5'000)).isEmpty());
    for (const QString &id : {QString(), u"MOB-1"_s, QString(10'000, u'm')})
        call(Runner, u"Run"_s, {id, u"action"_s});
    EXPECT_EQ(call(Runner, u"Match"_s, {QStringList(u"mob"_s)}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(spy->count(), 0);
}

TEST_F(BusServicesTest, KRunnersResultsHaveTheTypesOfItsInterface)
{
    EXPECT_EQ(call(Runner, u"Match"_s, {u"mob"_s}).signature(), u"a(sssida{sv})"_s);
    EXPECT_EQ(call(Runner, u"Match"_s, {u"elsewhere"_s}).signature(), u"a(sssida{sv})"_s);
    EXPECT_EQ(call(Runner, u"Actions"_s, {}).signature(), u"a(sss)"_s);
    EXPECT_EQ(call(Search, u"GetResultMetas"_s, {QStringList()}).signature(), u"aa{sv}"_s);
}

TEST_F(BusServicesTest, TheDesktopShowsTheProgramOpensAddressesAndStartsActions)
{
    const QVariantMap token{{u"activation-token"_s, u"jeton"_s}};
    const QVariantMap startup{{u"desktop-startup-id"_s, u"id_TIME4711"_s}};
    call(Application, u"Activate"_s, {token});
    call(Application, u"Open"_s, {QStringList({u"velmora:A-1"_s, u"velmora:A-2"_s}), startup});
    for (const QString &action : {u"new-issue"_s, u"palette"_s, u"refresh"_s})
        call(Application, u"ActivateAction"_s, {action, QVariantList(), QVariantMap()});
    ASSERT_EQ(spy->count(), 6);
    EXPECT_EQ(activation(0).token, "jeton");
    EXPECT_EQ(request(0), QByteArray());
    EXPECT_EQ(request(1), "velmora:A-1");
    EXPECT_EQ(activation(2).time(), Now);
    EXPECT_EQ(request(2), "velmora:A-2");
    EXPECT_EQ(request(3), "--new-issue");
    EXPECT_EQ(request(4), "--palette");
    EXPECT_EQ(request(5), "--refresh");
}

TEST_F(BusServicesTest, TheDesktopsHostileCallsAreHarmless)
{
    call(Application, u"Open"_s, {QStringList(), QVariantMap()});
    EXPECT_EQ(spy->count(), 0);
    call(Application, u"Open"_s, {QStringList(10'000, u"velmora:A-1"_s), QVariantMap()});
    EXPECT_EQ(spy->count(), ApplicationObject::MostAddresses);
    spy->clear();
    call(Application, u"ActivateAction"_s, {QString(10'000, u'x'), QVariantList(), QVariantMap()});
    call(Application, u"Activate"_s,
         {QVariantMap{{u"activation-token"_s, QString(10'000, u'x')},
                      {u"desktop-startup-id"_s, 5}}});
    ASSERT_EQ(spy->count(), 2);
    EXPECT_EQ(request(0), QByteArray());
    EXPECT_EQ(activation(1).token, QByteArray());
    EXPECT_EQ(call(Application, u"Activate"_s, {u"text"_s}).type(), QDBusMessage::ErrorMessage);
}

TEST_F(BusServicesTest, AnotherProcessKeepsTheName)
{
    const auto other = bus.connection(u"second"_s);
    connections.insert(other.baseService(), u"second"_s);
    const BusServices second(other, *store);
    EXPECT_EQ(owner(), u"program"_s);
    services.reset();
    EXPECT_TRUE(runUntil([this] { return owner().isEmpty(); }));
}

TEST_F(BusServicesTest, WithoutABusNothingIsOffered)
{
    const BusServices absent(QDBusConnection(u"absent"_s), *store);
    EXPECT_EQ(owner(), u"program"_s);
}
