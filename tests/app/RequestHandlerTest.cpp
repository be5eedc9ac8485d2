#include "app/RequestHandler.h"

#include "app/WindowFixture.h"
#include "desktop/Requests.h"
#include "shell/about/About.h"

#include <QTest>

using namespace Qt::StringLiterals;

class RequestHandling : public WindowFixture
{
protected:
    RequestHandling()
    {
        serve({u"MOB-1"_s, u"MOB-2"_s});
        service->issueCalls.answerBy(
            [this](const QString &key) { return *store().issue(key).value_or(SharedIssue()); });
    }
    void request(const QByteArray &text) { handler->carryOut({}, text); }
    /// Call it once the window is open.
    void listen() { handler = std::make_unique<RequestHandler>(store(), app->scenes()); }

    void TearDown() override { handler.reset(); }

    std::unique_ptr<RequestHandler> handler;
};

TEST_F(RequestHandling, WithoutATextTheMainWindowComesBack)
{
    openOnDemo();
    listen();
    // The process continues as long as a window is open.
    app->scenes().showSettings();
    window().close();
    ASSERT_FALSE(window().isVisible());
    request({});
    EXPECT_TRUE(window().isVisible());
}

TEST_F(RequestHandling, AnAddressOpensTheWindowOfTheIssue)
{
    openOnDemo();
    listen();
    request(Requests::toOpen(u"MOB-2"_s));
    EXPECT_TRUE(app->scenes().issueWindow(u"MOB-2"_s));
}

TEST_F(RequestHandling, ANewIssueIsWrittenInPlaceOfThePalette)
{
    openOnDemo();
    listen();
    store().setPalette(PaletteMode::root());
    request(Requests::NewIssue);
    EXPECT_TRUE(store().isCreating());
    EXPECT_FALSE(store().palette());
    await(QAccessible::EditableText, u"Titre"_s);
}

TEST_F(RequestHandling, ThePaletteIsOpenedAndNeverClosed)
{
    openOnDemo();
    listen();
    request(Requests::Palette);
    request(Requests::Palette);
    EXPECT_TRUE(store().palette());
}

TEST_F(RequestHandling, AShortcutOfTheDesktopDoesWhatTheActionOfItsIdDoes)
{
    openOnDemo();
    listen();
    handler->carryOutShortcut(DesktopShortcuts::Palette.toString(), {});
    EXPECT_TRUE(store().palette());
    handler->carryOutShortcut(DesktopShortcuts::NewIssue.toString(), "jeton");
    EXPECT_TRUE(store().isCreating());
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "jeton");
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

TEST_F(RequestHandling, ShortcutsOfTheDesktopWithOtherIdsDoNothing)
{
    openOnDemo();
    listen();
    for (const QString &id : {QString(), u"quit"_s, u"--palette"_s, QString(10'000, u'x')})
        handler->carryOutShortcut(id, {});
    EXPECT_FALSE(store().palette());
    EXPECT_FALSE(store().isCreating());
}

TEST_F(RequestHandling, AnIssueThatIsBeingWrittenStaysInFront)
{
    openOnDemo();
    listen();
    store().newIssue();
    request(Requests::Palette);
    request(Requests::NewIssue);
    EXPECT_TRUE(store().isCreating());
    EXPECT_FALSE(store().palette());
}

TEST_F(RequestHandling, ASheetThatMustBeCompletedStaysInFront)
{
    openOnDemo();
    listen();
    About::shared().show();
    const Spoken close = await(QAccessible::Button, u"Fermer"_s);
    request(Requests::Palette);
    request(Requests::NewIssue);
    EXPECT_FALSE(store().palette());
    EXPECT_FALSE(store().isCreating());
    click(close);
    EXPECT_TRUE(isGone(QAccessible::Button, u"Fermer"_s));
    request(Requests::Palette);
    EXPECT_TRUE(store().palette());
}

TEST_F(RequestHandling, ThePaletteTakesThePlaceOfAMenu)
{
    openOnDemo();
    listen();
    rightClick(await(QAccessible::ListItem, u"MOB-1,"_s));
    await(QAccessible::MenuItem, u"Copier la clé"_s);
    request(Requests::Palette);
    EXPECT_TRUE(isGone(QAccessible::MenuItem, u"Copier la clé"_s));
    EXPECT_TRUE(store().palette());
    press(Qt::Key_Escape);
    EXPECT_FALSE(store().palette());
}

TEST_F(RequestHandling, RefreshingFetchesTheListAgain)
{
    openOnDemo();
    listen();
    const auto before = service->issuesCalls.count();
    request(Requests::Refresh);
    EXPECT_TRUE(QTest::qWaitFor([&] { return service->issuesCalls.count() > before; }));
}

TEST_F(RequestHandling, AnActionWaitsForTheSession)
{
    openSignedOut();
    listen();
    request(Requests::Palette);
    request(Requests::NewIssue);
    EXPECT_FALSE(store().isCreating());
    click(find(QAccessible::Button, u"Explorer en mode démo"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return store().isCreating(); }));
    EXPECT_FALSE(store().palette());
}

TEST_F(RequestHandling, OtherTextsDoNothing)
{
    openOnDemo();
    listen();
    const auto before = QGuiApplication::topLevelWindows().size();
    for (const QByteArray &text : {QByteArray("--unknown"), QByteArray("\xff\x00\n", 3),
                                   QByteArray(10'000, 'x'), QByteArray("--palette ")})
        request(text);
    EXPECT_EQ(QGuiApplication::topLevelWindows().size(), before);
    EXPECT_FALSE(store().palette());
}
