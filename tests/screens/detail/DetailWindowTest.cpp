#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

/// An issue in a window of its own, while the main window has chosen another one.
class DetailWindow : public WindowFixture
{
protected:
    DetailWindow()
    {
        serve({u"MOB-1"_s, u"MOB-2"_s});
        service->issueCalls.answerBy(
            [this](const QString &key) { return *store().issue(key).value_or(SharedIssue()); });
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        store().setFocusedKey(u"MOB-1"_s);
        Q_EMIT store().openWindowRequested(u"MOB-2"_s);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&own()));
    }

    QQuickWindow &own() { return *app->scenes().issueWindow(u"MOB-2"_s); }
    bool isOpen() { return app->scenes().issueWindow(u"MOB-2"_s) != nullptr; }
    void pressHere(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&own(), key, modifiers);
    }
    bool comes(QAccessible::Role role, const QString &name)
    {
        return QTest::qWaitFor([&] { return spokenIn(own(), role, name).size() == 1; });
    }
    bool goes(QAccessible::Role role, const QString &name)
    {
        return QTest::qWaitFor([&] { return spokenIn(own(), role, name).isEmpty(); });
    }
    void clickHere(QAccessible::Role role, const QString &name)
    {
        ASSERT_TRUE(comes(role, name)) << name.toStdString();
        const auto box = spokenIn(own(), role, name).first().box;
        QTest::mouseClick(&own(), Qt::LeftButton, {}, box.center());
    }
};

TEST_F(DetailWindow, ALetterOpensThePickerOfItsIssueHere)
{
    pressHere(Qt::Key_P);
    EXPECT_TRUE(comes(QAccessible::Dialog, u"priorité"_s));
    EXPECT_FALSE(store().palette());
    pressHere(Qt::Key_Escape);
    pressHere(Qt::Key_Escape);
    EXPECT_TRUE(goes(QAccessible::Dialog, {}));
    EXPECT_TRUE(isOpen());
}

TEST_F(DetailWindow, ThePaletteHasTheCommandsOfItsIssueOnly)
{
    pressHere(Qt::Key_K, Qt::ControlModifier);
    ASSERT_TRUE(comes(QAccessible::Dialog, u"Palette de commandes"_s));
    EXPECT_FALSE(store().palette());
    EXPECT_TRUE(comes(QAccessible::ListItem, u"Copier le lien"_s));
    EXPECT_TRUE(spokenIn(own(), QAccessible::ListItem, u"Nouveau ticket"_s).isEmpty());
    EXPECT_TRUE(spokenIn(own(), QAccessible::ListItem, u"Mes tickets"_s).isEmpty());
    clickHere(QAccessible::ListItem, u"Copier la clé"_s);
    EXPECT_EQ(lastCopied(), u"MOB-2"_s);
    EXPECT_TRUE(goes(QAccessible::Dialog, {}));
}

TEST_F(DetailWindow, ThePalettesOfTwoWindowsAreIndependent)
{
    store().run(Command::TogglePalette);
    pressHere(Qt::Key_K, Qt::ControlModifier);
    ASSERT_TRUE(comes(QAccessible::Dialog, u"Palette de commandes"_s));
    pressHere(Qt::Key_Escape);
    EXPECT_TRUE(goes(QAccessible::Dialog, {}));
    EXPECT_TRUE(store().palette());
}

TEST_F(DetailWindow, AnIssueThatIsFoundOpensInItsOwnWindow)
{
    pressHere(Qt::Key_K, Qt::ControlModifier);
    ASSERT_TRUE(comes(QAccessible::Dialog, u"Palette de commandes"_s));
    for (const QChar letter : u"MOB-1"_s)
        QTest::sendKeyEvent(QTest::Click, &own(), Qt::Key_unknown, QString(letter), {});
    ASSERT_TRUE(comes(QAccessible::ListItem, u"Résumé de MOB-1"_s));
    pressHere(Qt::Key_Return);
    EXPECT_TRUE(app->scenes().issueWindow(u"MOB-1"_s));
    EXPECT_EQ(store().inspectorKey(), std::nullopt);
}

TEST_F(DetailWindow, AssigningToMeTakesItsIssueAndTheToastShowsHere)
{
    pressHere(Qt::Key_I);
    ASSERT_EQ(service->assignCalls.count(), 1);
    EXPECT_EQ(service->assignCalls.last().argument(), u"MOB-2"_s);
    clickHere(QAccessible::Button, u"Copier le lien"_s);
    EXPECT_TRUE(comes(QAccessible::Notification, u"copié"_s));
}

TEST_F(DetailWindow, KeysOfTheMainWindowDoNothingHere)
{
    for (const auto key : {Qt::Key_J, Qt::Key_K, Qt::Key_X, Qt::Key_1, Qt::Key_2, Qt::Key_C})
        pressHere(key);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
    EXPECT_FALSE(store().isSelecting());
    EXPECT_FALSE(store().isCreating());
    EXPECT_EQ(store().layout(), LayoutMode::List);
}

TEST_F(DetailWindow, EscapeFirstLeavesAFieldAndThenClosesTheWindow)
{
    clickHere(QAccessible::EditableText, u"Titre"_s);
    pressHere(Qt::Key_Escape);
    ASSERT_TRUE(isOpen());
    pressHere(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
}

TEST_F(DetailWindow, UntilThereIsASessionItShowsThatItWaits)
{
    store().signOut();
    EXPECT_TRUE(goes(QAccessible::EditableText, u"Titre"_s));
    EXPECT_TRUE(spokenIn(own(), QAccessible::Button, u"Statut"_s).isEmpty());
}
