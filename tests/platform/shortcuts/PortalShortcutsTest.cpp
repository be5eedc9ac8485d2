#include "platform/shortcuts/PortalFixture.h"

using namespace Qt::StringLiterals;

class PortalShortcutsTest : public PortalFixture
{
};

TEST_F(PortalShortcutsTest, TheDialogIsNotOpenedByItself)
{
    startPortal();
    start();
    settle();
    EXPECT_TRUE(portal->calls.isEmpty());
}

TEST_F(PortalShortcutsTest, WithoutAPortalThereAreNone)
{
    startWithoutPortal();
    shortcuts->choose();
    portal = std::make_unique<ScriptedPortal>(bus.connection(portalName), QVariant());
    settle();
    settle();
    EXPECT_FALSE(shortcuts->isPresent());
    EXPECT_TRUE(portal->calls.isEmpty());
}

TEST_F(PortalShortcutsTest, WithoutABusThereAreNone)
{
    PortalShortcuts absent(QDBusConnection(u"absent"_s), preferences);
    absent.choose();
    EXPECT_FALSE(absent.isPresent());
}

TEST_F(PortalShortcutsTest, BothShortcutsAreOfferedInFrench)
{
    startPortal();
    start();
    shortcuts->choose();
    const Call create = callNumber(1);
    EXPECT_EQ(create.method, u"CreateSession"_s);
    const Call bind = bindAfter(1);
    EXPECT_EQ(bind.method, u"BindShortcuts"_s);
    EXPECT_EQ(bind.session, create.session);
    const auto offered = portalShortcuts(bind.arguments.value(1)).value_or(QList<PortalShortcut>());
    const QList<PortalShortcut> expected{{newIssue, {{u"description"_s, u"Nouveau ticket"_s}}},
                                         {palette, {{u"description"_s, u"Palette"_s}}}};
    EXPECT_EQ(offered, expected);
}

TEST_F(PortalShortcutsTest, WhatIsBoundIsRememberedAndItsKeysAreTold)
{
    startPortal();
    start();
    const QSignalSpy changes(shortcuts.get(), &DesktopShortcuts::changed);
    chooseShortcuts();
    EXPECT_TRUE(isRemembered());
    EXPECT_EQ(keys(newIssue), u"Ctrl+Alt+N"_s);
    EXPECT_EQ(keys(palette), u"Super+K"_s);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(PortalShortcutsTest, TheNextStartBindsThemAgain)
{
    remember();
    startPortal();
    start();
    portal->respond(bindAfter(1), Done, bothBound());
    settle();
    EXPECT_EQ(keys(palette), u"Super+K"_s);
    EXPECT_EQ(portal->calls.size(), 2);
}

TEST_F(PortalShortcutsTest, APressIsToldWithItsToken)
{
    startPortal();
    start();
    const Call bind = chooseShortcuts();
    portal->activate(bind, newIssue, {{u"activation_token"_s, u"jeton"_s}});
    portal->activate(bind, palette);
    settle();
    ASSERT_EQ(activations->count(), 2);
    EXPECT_EQ(activations->value(0), QVariantList({newIssue, QByteArray("jeton")}));
    EXPECT_EQ(activations->value(1), QVariantList({palette, QByteArray()}));
}

TEST_F(PortalShortcutsTest, AUserWhoCancelsIsNotAskedAtTheNextStart)
{
    remember();
    startPortal();
    start();
    const Call bind = bindAfter(1);
    portal->respond(bind, Cancelled);
    settle();
    settle();
    EXPECT_FALSE(isRemembered());
    EXPECT_TRUE(portal->closed.contains(bind.session));
}

TEST_F(PortalShortcutsTest, APortalThatFailsIsAskedAgainAtTheNextStart)
{
    remember();
    startPortal();
    start();
    portal->respond(bindAfter(1), Failed);
    settle();
    EXPECT_TRUE(isRemembered());
    EXPECT_EQ(keys(palette), QString());
}

TEST_F(PortalShortcutsTest, ASessionWithoutShortcutsIsNotRemembered)
{
    remember();
    startPortal();
    start();
    portal->respond(bindAfter(1), Done, ScriptedPortal::bound({}));
    settle();
    EXPECT_FALSE(isRemembered());
}

TEST_F(PortalShortcutsTest, ASessionThatIsRefusedIsClosedAndTheButtonStillWorks)
{
    startPortal();
    start();
    for (const uint response : {Cancelled, Failed}) {
        shortcuts->choose();
        portal->respond(callNumber(portal->calls.size() + 1), response);
        settle();
    }
    portal->refuses = true;
    shortcuts->choose();
    callNumber(3);
    settle();
    portal->refuses = false;
    chooseShortcuts();
    EXPECT_EQ(keys(palette), u"Super+K"_s);
}

TEST_F(PortalShortcutsTest, APressWhileTheDialogIsOpenReplacesIt)
{
    startPortal();
    start();
    shortcuts->choose();
    const Call earlier = bindAfter(1);
    shortcuts->choose();
    const Call bind = bindAfter(3);
    EXPECT_EQ(portal->closed, QStringList({earlier.request, earlier.session}));
    portal->respond(earlier, Cancelled);
    portal->respond(bind, Done, bothBound());
    settle();
    EXPECT_TRUE(isRemembered());
    portal->activate(earlier, newIssue);
    settle();
    EXPECT_EQ(activations->count(), 0) << "the session has ended";
    EXPECT_EQ(keys(palette), u"Super+K"_s);
}

TEST_F(PortalShortcutsTest, AResponseThatComesTwiceCountsOnce)
{
    startPortal();
    start();
    shortcuts->choose();
    const Call create = callNumber(1);
    portal->grant(create);
    portal->grant(create);
    const Call bind = callNumber(2);
    portal->respond(bind, Done, bothBound());
    portal->respond(bind, Cancelled);
    settle();
    EXPECT_EQ(portal->calls.size(), 2);
    EXPECT_TRUE(isRemembered());
}

TEST_F(PortalShortcutsTest, APortalThatVanishesAndReturnsBindsThemAgain)
{
    startPortal();
    start();
    chooseShortcuts();
    stopPortal();
    EXPECT_TRUE(runUntil([this] { return !shortcuts->isPresent(); }));
    EXPECT_EQ(keys(palette), QString());
    shortcuts->choose();
    startPortal();
    const Call bind = bindAfter(1);
    portal->respond(bind, Done, bothBound());
    portal->activate(bind, palette);
    settle();
    EXPECT_EQ(keys(palette), u"Super+K"_s);
    EXPECT_EQ(activations->count(), 1);
    EXPECT_EQ(portal->calls.size(), 2);
}

TEST_F(PortalShortcutsTest, APortalThatVanishesInBetweenIsForgotten)
{
    startPortal();
    start();
    shortcuts->choose();
    const Call create = callNumber(1);
    stopPortal();
    startPortal();
    EXPECT_TRUE(runUntil([this] { return shortcuts->isPresent(); }));
    portal->grant(create);
    settle();
    settle();
    EXPECT_TRUE(portal->calls.isEmpty());
}

TEST_F(PortalShortcutsTest, ASessionThatThePortalClosesHasNoShortcuts)
{
    startPortal();
    start();
    const Call bind = chooseShortcuts();
    portal->send(bind, bind.session, u"org.freedesktop.portal.Session"_s, u"Closed"_s,
                 {QVariantMap()});
    portal->activate(bind, palette);
    settle();
    EXPECT_EQ(keys(palette), QString());
    EXPECT_EQ(activations->count(), 0);
    EXPECT_TRUE(isRemembered());
}

TEST_F(PortalShortcutsTest, APortalWithAPathOfItsOwnForRequestsIsHeard)
{
    startPortal();
    portal->ownRequest = portalPath + u"/request/own"_s;
    start();
    shortcuts->choose();
    const Call create = callNumber(1);
    settle();
    portal->grant(create);
    const Call bind = callNumber(2);
    settle();
    portal->respond(bind, Done, bothBound());
    settle();
    EXPECT_EQ(keys(palette), u"Super+K"_s);
}

TEST_F(PortalShortcutsTest, ChangedKeysAreTold)
{
    startPortal();
    start();
    const Call bind = chooseShortcuts();
    const QList<PortalShortcut> changed{ScriptedPortal::withKeys(palette, u"F9"_s)};
    portal->send(
        bind, portalPath, interface, u"ShortcutsChanged"_s,
        {QVariant::fromValue(QDBusObjectPath(bind.session)), QVariant::fromValue(changed)});
    settle();
    EXPECT_EQ(keys(palette), u"F9"_s);
    EXPECT_EQ(keys(newIssue), QString());
}

TEST_F(PortalShortcutsTest, BoundShortcutsAreConfiguredWhereThePortalCan)
{
    startPortal(2U);
    start();
    const Call bind = chooseShortcuts();
    shortcuts->choose();
    const Call configure = callNumber(3);
    EXPECT_EQ(configure.method, u"ConfigureShortcuts"_s);
    EXPECT_EQ(configure.session, bind.session);
    EXPECT_EQ(keys(palette), u"Super+K"_s);
}

TEST_F(PortalShortcutsTest, TheSessionEndsWithTheProgram)
{
    startPortal();
    start();
    const Call bind = chooseShortcuts();
    shortcuts.reset();
    EXPECT_TRUE(runUntil([&] { return portal->closed.contains(bind.session); }));
}
