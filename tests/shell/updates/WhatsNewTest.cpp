#include "shell/updates/UpdatesFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class WhatsNew : public UpdatesFixture
{
protected:
    bool isShown() { return !spokenIn(window(), QAccessible::Dialog, u"Nouveautés"_s).isEmpty(); }
};

TEST_F(WhatsNew, TheSheetIsShownOnceAfterAnUpdate)
{
    serve({u"MOB-1"_s});
    openAfterUpdateTo(release(u"# Au clavier\n\nLa touche **I** assigne."_s));
    await(QAccessible::Dialog, u"Nouveautés de Velmora 1.4.0"_s);
    find(QAccessible::Heading, u"Nouveautés de Velmora 1.4.0"_s);
    find(QAccessible::StaticText, u"L'app a été mise à jour, ta connexion Jira est conservée."_s);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return find(QAccessible::Button, u"Continuer"_s).state.focused; }));
    press(Qt::Key_Return);
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Nouveautés"_s));
    EXPECT_FALSE(updater().hasWhatsNew());
    press(Qt::Key_Down);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s) << "the issues have the keyboard";
    app.reset();
    openOnDemo();
    settle();
    EXPECT_FALSE(isShown());
}

TEST_F(WhatsNew, EscapeDismissesItToo)
{
    openAfterUpdateTo(release(u"Rien."_s));
    await(QAccessible::Dialog, u"Nouveautés"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Nouveautés"_s));
    EXPECT_FALSE(updater().hasWhatsNew());
}

TEST_F(WhatsNew, AReleaseWithoutNotesShowsOneSentence)
{
    openAfterUpdateTo(release());
    await(QAccessible::Dialog, u"Nouveautés"_s);
    find(QAccessible::StaticText, u"Améliorations et corrections."_s);
    EXPECT_TRUE(spokenIn(window(), QAccessible::Document, u"Notes de version"_s).isEmpty());
}

TEST_F(WhatsNew, AnOrdinaryStartShowsNothing)
{
    openOnDemo();
    settle();
    EXPECT_FALSE(isShown());
}

TEST_F(WhatsNew, TenThousandLinesScrollInsideTheSheet)
{
    openAfterUpdateTo(release(u"Une ligne de notes.\n\n"_s.repeated(5000)));
    await(QAccessible::Dialog, u"Nouveautés"_s);
    const QRect button = find(QAccessible::Button, u"Continuer"_s).box;
    EXPECT_TRUE(QRect(QPoint(), window().size()).contains(button));
    const auto top = [this] {
        return find(QAccessible::Document, u"Notes de version"_s).box.top();
    };
    const int before = top();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return top() < before; }));
    press(Qt::Key_Return);
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Nouveautés"_s));
}

TEST_F(WhatsNew, ItStandsOverTheSignInScreenToo)
{
    openAfterUpdateTo(release(u"Rien."_s));
    store().signOut();
    await(QAccessible::Dialog, u"Nouveautés"_s);
    click(find(QAccessible::Button, u"Continuer"_s));
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Nouveautés"_s));
}

TEST_F(WhatsNew, ALinkOfTheNotesIsOpenedOnTheDesktop)
{
    openAfterUpdateTo(release(u"[le site](https://exemple.fr/nouveau)"_s));
    await(QAccessible::Dialog, u"Nouveautés"_s);
    bool isOpened = false;
    for (int i = 0; i < 6 && !isOpened; ++i) {
        press(Qt::Key_Tab);
        if (spokenIn(window(), QAccessible::Link, u"le site"_s).isEmpty())
            continue;
        if (spokenIn(window(), QAccessible::Link, u"le site"_s).first().state.focused) {
            press(Qt::Key_Return);
            isOpened = true;
        }
    }
    EXPECT_EQ(desktop->opened, QList{QUrl(u"https://exemple.fr/nouveau"_s)});
    EXPECT_TRUE(isShown());
}
