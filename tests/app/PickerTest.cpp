#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

class Picker : public WindowFixture
{
protected:
    Picker()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        serve({u"MOB-1"_s, u"MOB-2"_s}, u"À faire"_s);
        service->assignCalls.answerWith();
        service->performCalls.answerWith();
        openOnDemo();
        service->transitionsCalls.answerWith(
            {{u"11"_s, u"Commencer"_s, IssueStatus::guessed(u"En cours"_s)}});
        desktop->setPrefersReducedMotion(true);
        press(Qt::Key_Down);
    }

    bool isShown(const QString &placeholder)
    {
        return !spokenIn(window(), QAccessible::EditableText, placeholder).isEmpty();
    }
    QStringList options()
    {
        QStringList names;
        for (const auto &row : spokenIn(window(), QAccessible::ListItem)) {
            if (row.box.left() >= 340 && row.box.width() == 624)
                names += row.name;
        }
        return names;
    }
    bool offers(const QStringList &names)
    {
        return QTest::qWaitFor([&] { return options() == names; });
    }
    Issue issue(const QString &key) { return *store().issue(key).value_or(SharedIssue()); }

    /// MOB-1 in "À faire", which keeps the focus, and MOB-2 in "En cours".
    void serveTwoStatuses()
    {
        Issue todo = issue(u"MOB-1"_s);
        Issue begun = issue(u"MOB-2"_s);
        begun.status = IssueStatus::guessed(u"En cours"_s);
        service->issuesCalls.answerWith({todo, begun});
        reload();
    }
};

TEST_F(Picker, EachLetterOpensItsPicker)
{
    const QList<std::pair<Qt::Key, QString>> pickers{{Qt::Key_S, u"Statut…"_s},
                                                     {Qt::Key_P, u"Priorité…"_s},
                                                     {Qt::Key_A, u"Assigner…"_s},
                                                     {Qt::Key_L, u"Ajouter des étiquettes…"_s}};
    for (const auto &[key, placeholder] : pickers) {
        press(key);
        EXPECT_TRUE(isShown(placeholder)) << placeholder.toStdString();
        press(Qt::Key_Escape);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !isShown(placeholder); }))
            << placeholder.toStdString();
    }
}

TEST_F(Picker, ADigitChangesTheStatusOfTheFocusedIssue)
{
    serveTwoStatuses();
    press(Qt::Key_S);
    ASSERT_TRUE(offers({u"À faire"_s, u"En cours"_s}));

    press(Qt::Key_2);

    EXPECT_EQ(issue(u"MOB-1"_s).status.name(), u"En cours"_s);
    EXPECT_FALSE(store().palette());
    EXPECT_EQ(store().layout(), LayoutMode::List);
}

TEST_F(Picker, ADigitWithoutARowIsNoCommandOfTheMainWindow)
{
    press(Qt::Key_A);
    press(Qt::Key_2);

    EXPECT_EQ(store().layout(), LayoutMode::List);
    EXPECT_TRUE(store().palette());
}

TEST_F(Picker, TheArrowsMoveTheHighlightThatReturnPicks)
{
    serveTwoStatuses();
    press(Qt::Key_S);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(issue(u"MOB-1"_s).status.name(), u"En cours"_s);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(Picker, TypingFindsAPersonAndReturnAssigns)
{
    press(Qt::Key_A);
    type(u"noam"_s);
    EXPECT_TRUE(offers({u"Noam Talvère"_s})) << options().join(u", ").toStdString();

    press(Qt::Key_Return);

    ASSERT_TRUE(issue(u"MOB-1"_s).assignee);
    EXPECT_EQ(issue(u"MOB-1"_s).assignee->name, u"Noam Talvère"_s);
    EXPECT_FALSE(store().palette());
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(Picker, LettersOfTheKeyMapAreTypedWhileItIsOpen)
{
    press(Qt::Key_A);
    type(u"xj"_s);

    EXPECT_TRUE(store().checked().isEmpty());
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
    find(QAccessible::StaticText, u"Aucun résultat"_s);
}

TEST_F(Picker, EscapeEmptiesTheSearchAndThenCloses)
{
    press(Qt::Key_A);
    type(u"zzz"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(store().palette());
    EXPECT_TRUE(offers({u"Non assigné"_s, u"Noam Talvère"_s}));

    press(Qt::Key_Escape);
    EXPECT_FALSE(store().palette());
}

TEST_F(Picker, TheFocusReturnsToWhereItWas)
{
    auto *before = window().activeFocusItem();
    press(Qt::Key_S);
    ASSERT_NE(window().activeFocusItem(), before);
    ASSERT_TRUE(window().activeFocusItem()->inherits("QQuickTextInput"));

    press(Qt::Key_Escape);

    EXPECT_EQ(window().activeFocusItem(), before);
    press(Qt::Key_Down);
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
}

TEST_F(Picker, AClickOnTheScrimCloses)
{
    press(Qt::Key_S);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, {1000, 800});

    EXPECT_FALSE(store().palette());
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(Picker, AClickOnARowPicksIt)
{
    press(Qt::Key_A);
    ASSERT_TRUE(offers({u"Non assigné"_s, u"Noam Talvère"_s}));
    click(find(QAccessible::ListItem, u"Noam Talvère"_s));

    ASSERT_TRUE(issue(u"MOB-1"_s).assignee);
    EXPECT_EQ(issue(u"MOB-1"_s).assignee->name, u"Noam Talvère"_s);
    EXPECT_FALSE(store().palette());
}

TEST_F(Picker, WithoutAFocusedIssueItAsksForOne)
{
    store().setFocusedKey(std::nullopt);
    press(Qt::Key_S);

    EXPECT_FALSE(store().palette());
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return !spokenIn(window(), QAccessible::Button, u"Sélectionne d'abord un ticket"_s)
                    .isEmpty();
    }));
}

TEST_F(Picker, KeysOfScreensThatDoNotExistLeaveTheKeyboardAlone)
{
    press(Qt::Key_C);
    press(Qt::Key_N, Qt::ControlModifier);
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_FALSE(store().isCreating());
    EXPECT_FALSE(store().palette());

    press(Qt::Key_Down);
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
}
