#include "platform/shortcuts/PortalFixture.h"

using namespace Qt::StringLiterals;

class HostilePortalTest : public PortalFixture
{
};

TEST_F(HostilePortalTest, AVersionOfAnotherKindIsNoPortal)
{
    for (const QVariant &version : {QVariant(u"1"_s), QVariant(0U), QVariant(QVariantMap())}) {
        startPortal(version);
        startWithoutPortal();
        settle();
        settle();
        EXPECT_FALSE(shortcuts->isPresent());
        shortcuts.reset();
        stopPortal();
    }
}

TEST_F(HostilePortalTest, RepliesOfAnotherKindEndTheSession)
{
    startPortal();
    start();
    portal->strangeReply = 5;
    shortcuts->choose();
    const Call create = callNumber(1);
    settle();
    settle();
    portal->grant(create);
    settle();
    EXPECT_EQ(portal->calls.size(), 1);
}

TEST_F(HostilePortalTest, ResponsesOfAnotherKindEndTheSession)
{
    startPortal();
    start();
    const QList<QVariantList> hostile{
        {}, {0U}, {u"0"_s, QVariantMap()}, {0U, u"results"_s}, {0U, QVariantMap(), 1}};
    for (const auto &values : hostile) {
        shortcuts->choose();
        const Call create = callNumber(portal->calls.size() + 1);
        portal->send(create, create.request, requestInterface, u"Response"_s, values);
        settle();
        portal->grant(create);
        settle();
    }
    EXPECT_EQ(portal->calls.size(), hostile.size());
}

TEST_F(HostilePortalTest, AnotherSessionThanTheRequestedOneIsNotUsed)
{
    startPortal();
    start();
    for (const QVariant &handle : {QVariant(), QVariant(7), QVariant(u"/other/session"_s)}) {
        shortcuts->choose();
        portal->respond(callNumber(portal->calls.size() + 1), Done,
                        {{u"session_handle"_s, handle.isValid() ? handle : QVariant(QString())}});
        settle();
    }
    EXPECT_EQ(portal->calls.size(), 3);
}

TEST_F(HostilePortalTest, ResultsOfAnotherKindBindNothing)
{
    startPortal();
    start();
    for (const QVariant &value : {QVariant(u"text"_s), QVariant(7), QVariant(QStringList(u"a"_s)),
                                  QVariant(QVariantMap{{u"palette"_s, u"F9"_s}})}) {
        shortcuts->choose();
        portal->respond(bindAfter(portal->calls.size() + 1), Done, {{u"shortcuts"_s, value}});
        settle();
        EXPECT_FALSE(isRemembered());
    }
}

TEST_F(HostilePortalTest, ResultsOfAnotherKindDoNotForgetWhatWasBound)
{
    remember();
    startPortal();
    start();
    const Call bind = bindAfter(1);
    portal->respond(bind, Done, {{u"shortcuts"_s, u"text"_s}});
    EXPECT_TRUE(runUntil([&] { return portal->closed.contains(bind.session); }));
    EXPECT_TRUE(isRemembered());
}

TEST_F(HostilePortalTest, UnknownShortcutsAndStrangeKeysAreNotShown)
{
    startPortal();
    start();
    shortcuts->choose();
    const QString endless(PortalShortcuts::LongestKeys + 1, u'x');
    portal->respond(bindAfter(1), Done,
                    ScriptedPortal::bound({ScriptedPortal::withKeys(u"refresh"_s, u"F5"_s),
                                           ScriptedPortal::withKeys(newIssue, endless),
                                           ScriptedPortal::withKeys(palette, 7)}));
    settle();
    EXPECT_EQ(keys(u"refresh"_s), QString());
    EXPECT_EQ(keys(newIssue), QString());
    EXPECT_EQ(keys(palette), QString());
}

TEST_F(HostilePortalTest, HostilePressesDoNothing)
{
    startPortal();
    start();
    const Call bind = chooseShortcuts();
    const auto session = QVariant::fromValue(QDBusObjectPath(bind.session));
    portal->activate(bind, u"refresh"_s);
    portal->activate(bind, QString());
    Call other = bind;
    other.session += u"x"_s;
    portal->activate(other, palette);
    const QList<QVariantList> hostile{{},
                                      {session},
                                      {bind.session, palette, quint64(1), QVariantMap()},
                                      {session, 7, quint64(1), QVariantMap()},
                                      {session, palette, quint64(1), u"options"_s}};
    for (const auto &values : hostile)
        portal->send(bind, portalPath, interface, u"Activated"_s, values);
    portal->send(bind, portalPath, interface, u"ShortcutsChanged"_s, {session, u"text"_s});
    settle();
    EXPECT_EQ(activations->count(), 0);
    EXPECT_EQ(keys(palette), u"Super+K"_s);
    portal->activate(bind, palette, {{u"activation_token"_s, 7}});
    settle();
    EXPECT_EQ(activations->value(0), QVariantList({palette, QByteArray()}));
}

TEST_F(HostilePortalTest, SignalsOfAnotherProgramAreIgnored)
{
    startPortal();
    start();
    const Call bind = chooseShortcuts();
    auto other = bus.connection(u"other"_s);
    auto press =
        QDBusMessage::createTargetedSignal(bind.caller, portalPath, interface, u"Activated"_s);
    press.setArguments(
        {QVariant::fromValue(QDBusObjectPath(bind.session)), palette, quint64(1), QVariantMap()});
    other.send(press);
    auto ping = QDBusMessage::createMethodCall(client.baseService(), u"/"_s,
                                               u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
    const auto sent = other.asyncCall(ping);
    EXPECT_TRUE(runUntil([&] { return sent.isFinished(); }));
    settle();
    EXPECT_EQ(activations->count(), 0);
}
