#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

class Palette : public WindowFixture
{
protected:
    Palette()
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

    /// Serves MOB-1 in "À faire", which keeps the focus, and MOB-2 in "En cours".
    void serveTwoStatuses()
    {
        Issue todo = issue(u"MOB-1"_s);
        Issue begun = issue(u"MOB-2"_s);
        begun.status = IssueStatus::guessed(u"En cours"_s);
        service->issuesCalls.answerWith({todo, begun});
        reload();
    }
};

TEST_F(Palette, EachLetterOpensItsPicker)
{
    const QList<std::pair<Qt::Key, QString>> pickers{{Qt::Key_S, u"Statut…"_s},
                                                     {Qt::Key_P, u"Priorité…"_s},
                                                     {Qt::Key_A, u"Assigner…"_s},
                                                     {Qt::Key_L, u"Ajouter des étiquettes…"_s}};
    for (const auto &[key, placeholder] : pickers) {
        press(key);
        EXPECT_TRUE(isShown(placeholder)) << placeholder.toStdString();
        store().closePalette();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !isShown(placeholder); }))
            << placeholder.toStdString();
    }
}

TEST_F(Palette, ADigitChangesTheStatusOfTheFocusedIssue)
{
    serveTwoStatuses();
    press(Qt::Key_S);
    ASSERT_TRUE(offers({u"À faire"_s, u"En cours"_s}));

    press(Qt::Key_2);

    EXPECT_EQ(issue(u"MOB-1"_s).status.name(), u"En cours"_s);
    EXPECT_FALSE(store().palette());
    EXPECT_EQ(store().layout(), LayoutMode::List);
}

TEST_F(Palette, ADigitWithoutARowIsNoCommandOfTheMainWindow)
{
    press(Qt::Key_A);
    press(Qt::Key_2);

    EXPECT_EQ(store().layout(), LayoutMode::List);
    EXPECT_TRUE(store().palette());
}

TEST_F(Palette, TheArrowsMoveTheHighlightThatReturnPicks)
{
    serveTwoStatuses();
    press(Qt::Key_S);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(issue(u"MOB-1"_s).status.name(), u"En cours"_s);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(Palette, TypingFindsAPersonAndReturnAssigns)
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

TEST_F(Palette, LettersOfTheKeyMapAreTypedWhileItIsOpen)
{
    press(Qt::Key_A);
    type(u"xj"_s);

    EXPECT_TRUE(store().checked().isEmpty());
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
    find(QAccessible::StaticText, u"Aucun résultat"_s);
}

TEST_F(Palette, EscapeInAPickerEmptiesTheSearchThenGoesToTheRootThenCloses)
{
    press(Qt::Key_A);
    type(u"zzz"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(offers({u"Non assigné"_s, u"Noam Talvère"_s}));

    press(Qt::Key_Escape);
    EXPECT_TRUE(isShown(u"Rechercher un ticket, une action, un projet…"_s));

    press(Qt::Key_Escape);
    EXPECT_FALSE(store().palette());
}

TEST_F(Palette, TheFocusReturnsToWhereItWas)
{
    auto *before = window().activeFocusItem();
    press(Qt::Key_S);
    ASSERT_NE(window().activeFocusItem(), before);
    ASSERT_TRUE(window().activeFocusItem()->inherits("QQuickTextInput"));

    press(Qt::Key_Escape);
    press(Qt::Key_Escape);

    EXPECT_EQ(window().activeFocusItem(), before);
    press(Qt::Key_Down);
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
}

TEST_F(Palette, AClickOnTheScrimCloses)
{
    press(Qt::Key_S);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, {1000, 800});

    EXPECT_FALSE(store().palette());
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(Palette, AClickOnARowPicksIt)
{
    press(Qt::Key_A);
    ASSERT_TRUE(offers({u"Non assigné"_s, u"Noam Talvère"_s}));
    click(find(QAccessible::ListItem, u"Noam Talvère"_s));

    ASSERT_TRUE(issue(u"MOB-1"_s).assignee);
    EXPECT_EQ(issue(u"MOB-1"_s).assignee->name, u"Noam Talvère"_s);
    EXPECT_FALSE(store().palette());
}

TEST_F(Palette, WithoutAFocusedIssueItAsksForOne)
{
    store().setFocusedKey(std::nullopt);
    press(Qt::Key_S);

    EXPECT_FALSE(store().palette());
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return !spokenIn(window(), QAccessible::Notification, u"Sélectionne d'abord un ticket"_s)
                    .isEmpty();
    }));
}

TEST_F(Palette, ControlKTwiceLeavesItClosedAndTheFocusWhereItWas)
{
    auto *before = window().activeFocusItem();
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(store().palette(), PaletteMode::root());
    ASSERT_NE(window().activeFocusItem(), before);

    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_FALSE(store().palette());
    EXPECT_EQ(window().activeFocusItem(), before);
}

TEST_F(Palette, FromTheFilterFieldTheFocusReturnsToIt)
{
    click(find(QAccessible::EditableText, u"Filtrer"_s));
    auto *before = window().activeFocusItem();
    ASSERT_TRUE(before->inherits("QQuickTextInput"));
    press(Qt::Key_K, Qt::ControlModifier);
    press(Qt::Key_Escape);
    EXPECT_EQ(window().activeFocusItem(), before);
}

TEST_F(Palette, ThreeLettersOfATitleFindAnIssueAndReturnOpensIt)
{
    press(Qt::Key_K, Qt::ControlModifier);
    type(u"b-2"_s);
    ASSERT_TRUE(offers({u"Résumé de MOB-2"_s})) << options().join(u", ").toStdString();
    press(Qt::Key_Return);
    EXPECT_EQ(store().inspectorKey(), u"MOB-2"_s);
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
}

TEST_F(Palette, AtTheRootADigitIsTyped)
{
    press(Qt::Key_K, Qt::ControlModifier);
    type(u"2"_s);
    EXPECT_EQ(store().layout(), LayoutMode::List);
    EXPECT_EQ(find(QAccessible::EditableText, u"Rechercher un ticket"_s).value, u"2"_s);
}

TEST_F(Palette, TheHighlightedRowStaysInSight)
{
    press(Qt::Key_K, Qt::ControlModifier);
    for (int i = 0; i < 30; ++i)
        press(Qt::Key_Down);
    // The area of the rows, which excludes the footer.
    const QRect rows(340, 112 + 34 + 52, 640, 420);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const auto last = find(QAccessible::ListItem, u"Activité · Ce mois-ci"_s);
        return last.state.focused && rows.contains(last.box);
    }));
}

TEST_F(Palette, TheWheelScrollsTheRows)
{
    press(Qt::Key_K, Qt::ControlModifier);
    const QStringList before = options();
    QWheelEvent wheel({660, 400}, window().mapToGlobal(QPointF(660, 400)), {}, {0, -360},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window(), &wheel);
    EXPECT_TRUE(QTest::qWaitFor([&] { return before.indexOf(options().first()) >= 3; }))
        << options().first().toStdString();
}

TEST_F(Palette, TheTabKeyDoesNotLeaveIt)
{
    press(Qt::Key_K, Qt::ControlModifier);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab, Qt::ShiftModifier);
    type(u"b"_s);
    EXPECT_EQ(find(QAccessible::EditableText, u"Rechercher un ticket"_s).value, u"b"_s);
}

TEST_F(Palette, ARestingPointerHighlightsNothingAndAMovedOneItsRow)
{
    QTest::mouseMove(&window(), {600, 400});
    press(Qt::Key_K, Qt::ControlModifier);
    const auto highlighted = [&] {
        for (const auto &row : spokenIn(window(), QAccessible::ListItem)) {
            if (row.box.width() == 624 && row.state.focused)
                return row;
        }
        return Spoken();
    };
    const QString first = options().first();
    QTest::mouseMove(&window(), {600, 400});
    EXPECT_EQ(highlighted().name, first);

    QTest::mouseMove(&window(), {601, 401});
    QTest::mouseMove(&window(), {602, 402});
    EXPECT_TRUE(QTest::qWaitFor([&] { return highlighted().box.contains(602, 402); }))
        << highlighted().name.toStdString();

    // The rows scroll under the pointer, which does not move.
    for (int i = 0; i < 30; ++i)
        press(Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return highlighted().name == options().last(); }));
}

TEST_F(Palette, TheCountAndTheHighlightedRowAreSpoken)
{
    press(Qt::Key_K, Qt::ControlModifier);
    type(u"tableau"_s);
    const auto field = find(QAccessible::EditableText, u"Rechercher un ticket"_s);
    EXPECT_EQ(field.description, u"1 résultat. Afficher en tableau, 1 sur 1"_s);
}

TEST_F(Palette, InALowWindowItEndsAboveTheWindowsEdge)
{
    window().resize(940, 580);
    press(Qt::Key_K, Qt::ControlModifier);
    const auto panel = await(QAccessible::Dialog, u"Palette de commandes"_s);
    EXPECT_EQ(panel.box.top(), 112);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return find(QAccessible::Dialog, u"Palette de commandes"_s).box.bottom() < 580 - 8;
    })) << find(QAccessible::Dialog, u"Palette de commandes"_s).box.bottom();
}

TEST_F(Palette, AfterAJumpToAnotherListTheKeysAreTheListsAgain)
{
    service->issuesCalls.hold();
    press(Qt::Key_K, Qt::ControlModifier);
    type(u"créés"_s);
    ASSERT_TRUE(offers({u"Créés par moi"_s})) << options().join(u", ").toStdString();
    press(Qt::Key_Return);
    ASSERT_EQ(store().scope(), IssueScope::reported());
    ASSERT_TRUE(QTest::qWaitFor([&] { return rowsShown().isEmpty(); }));
    service->issuesCalls.last().finish({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s)});
    ASSERT_TRUE(QTest::qWaitFor([&] { return rowsShown().size() == 2; }));

    EXPECT_TRUE(find(QAccessible::List, u"Créés par moi"_s).state.focused);
    press(Qt::Key_Down);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(Palette, WhatIsOpenGoesWhenThePaletteComes)
{
    auto *before = window().activeFocusItem();
    const auto placeholder = u"Rechercher un ticket"_s;
    const QList<std::function<void()>> openers{
        [&] { click(spokenIn(window(), QAccessible::Button, u"Statut :"_s).first()); },
        [&] { click(find(QAccessible::Button, u"Affichage"_s)); },
        [&] { rightClick(find(QAccessible::ListItem, u"MOB-1,"_s)); },
    };
    const auto isOpen = [&] {
        return !spokenIn(window(), QAccessible::Dialog).isEmpty() ||
               !spokenIn(window(), QAccessible::PopupMenu).isEmpty();
    };
    for (const auto &open : openers) {
        open();
        ASSERT_TRUE(QTest::qWaitFor(isOpen));
        press(Qt::Key_K, Qt::ControlModifier);
        ASSERT_TRUE(store().palette());
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return spokenIn(window(), QAccessible::PopupMenu).isEmpty() &&
                   spokenIn(window(), QAccessible::Dialog).size() == 1;
        }));
        type(u"zz"_s);
        EXPECT_EQ(find(QAccessible::EditableText, placeholder).value, u"zz"_s);
        store().closePalette();

        EXPECT_EQ(window().activeFocusItem(), before);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
    }
}
