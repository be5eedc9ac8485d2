#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

/// When the item with the keyboard focus disappears, the list of issues gets the focus.
class KeyboardReturn : public WindowFixture
{
protected:
    KeyboardReturn()
    {
        serve({u"MOB-1"_s});
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        settle();
    }

    /// Presses Tab until a button whose name begins with `name` has the focus.
    void tabTo(const QString &name)
    {
        for (int steps = 0; steps < 60 && !nameOfFocus().startsWith(name); ++steps)
            press(Qt::Key_Tab);
        ASSERT_TRUE(nameOfFocus().startsWith(name)) << nameOfFocus().toStdString();
    }
    QString nameOfFocus() const
    {
        auto *item = app->mainWindow()->activeFocusItem();
        auto *spoken = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
        return spoken ? spoken->text(QAccessible::Name) : QString();
    }
    /// The list itself handles the context-menu key. Other keys are handled by the window on behalf of the list.
    void expectTheListAnswers()
    {
        press(Qt::Key_Menu);
        await(QAccessible::MenuItem, u"Copier la clé"_s);
    }
};

TEST_F(KeyboardReturn, FromTheButtonOfAnEmptyScreen)
{
    store().setFocusedKey(u"MOB-1"_s);
    store().setFilterText(u"introuvable"_s);
    await(QAccessible::StaticText, u"Aucun ticket ne correspond"_s);
    tabTo(u"Effacer les filtres"_s);
    press(Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return rowsShown().size() == 1; }));
    press(Qt::Key_J);

    expectTheListAnswers();
}

TEST_F(KeyboardReturn, FromAnInspectorThatCloses)
{
    store().setFocusedKey(u"MOB-1"_s);
    press(Qt::Key_Return);
    await(QAccessible::Button, u"Fermer l'inspecteur"_s);
    tabTo(u"Fermer l'inspecteur"_s);
    press(Qt::Key_Space);
    EXPECT_TRUE(isGone(QAccessible::Button, u"Fermer l'inspecteur"_s));

    expectTheListAnswers();
}

TEST_F(KeyboardReturn, FromTheSelectionBar)
{
    store().setFocusedKey(u"MOB-1"_s);
    press(Qt::Key_X);
    await(QAccessible::Button, u"Désélectionner"_s);
    tabTo(u"Désélectionner"_s);
    press(Qt::Key_Space);
    EXPECT_TRUE(isGone(QAccessible::Button, u"Désélectionner"_s));

    expectTheListAnswers();
}
