#include "app/WindowFixture.h"
#include "screens/kit/layers/OwnKeys.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

class MainWindow : public WindowFixture
{
protected:
    MainWindow()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        serve({u"MOB-1"_s, u"MOB-2"_s});
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
    }

    void resizeTo(int width, int height = 840)
    {
        window().setMinimumSize({0, 0});
        window().resize(width, height);
        settle();
    }
    bool hasSidebar()
    {
        return !spokenIn(window(), QAccessible::List, u"Vues et projets"_s).isEmpty();
    }
    /// The focus is on the sidebar's list, or on one of its rows.
    bool isInSidebar()
    {
        const auto *item = window().activeFocusItem();
        return item && OwnKeys::isInWalkedList(*item);
    }
    /// Ends the second after the start in which only the first screen is created.
    void passStart()
    {
        QQmlComponent component(qmlEngine(&window()));
        component.setData("import QtQml\nimport Velmora.Kit\n"
                          "QtObject { Component.onCompleted: AfterStart.hasPassed = true }",
                          QUrl(u"qrc:/start.qml"_s));
        const std::unique_ptr<QObject> holder(component.create());
        ASSERT_NE(holder, nullptr) << component.errorString().toStdString();
    }
    /// How many items of the window, visible or not, are of the type in this QML file.
    int countOf(const QByteArray &file)
    {
        int count = 0;
        QList<QQuickItem *> items{window().contentItem()};
        while (!items.isEmpty()) {
            const auto *item = items.takeLast();
            count += QByteArray(item->metaObject()->className()).startsWith(file + "_QML");
            items.append(item->childItems());
        }
        return count;
    }
    QRect row() { return await(QAccessible::ListItem, u"MOB-1,"_s).box; }
    QRect inspector() { return await(QAccessible::Pane, u"Inspecteur"_s).box; }
};

TEST_F(MainWindow, TheInspectorShowsTitleAndPropertiesAndClosesByItsCross)
{
    click(await(QAccessible::ListItem, u"MOB-1,"_s));
    EXPECT_EQ(inspector(), QRect(820, 8, 492, 824));
    EXPECT_EQ(row().right() + 1, 808);
    await(QAccessible::Heading, u"Résumé de MOB-1"_s);
    const auto chips = spokenIn(window(), QAccessible::Button, u"Statut : À faire"_s);
    EXPECT_TRUE(std::ranges::any_of(
        chips, [&](const Spoken &chip) { return inspector().contains(chip.box); }));

    click(await(QAccessible::Button, u"Fermer l'inspecteur"_s));

    EXPECT_TRUE(isGone(QAccessible::Pane, u"Inspecteur"_s));
    EXPECT_EQ(row().right() + 1, 1308);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(MainWindow, TheInspectorAndThePaletteAreCreatedAheadAndStayHidden)
{
    passStart();
    const auto areCreated = [this] {
        return countOf("InspectorPane") == 1 && countOf("PalettePanel") == 1;
    };
    ASSERT_TRUE(QTest::qWaitFor(areCreated));
    EXPECT_TRUE(isGone(QAccessible::Pane, u"Inspecteur"_s));
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Palette de commandes"_s));
    EXPECT_FALSE(store().showInspector());

    press(Qt::Key_J);
    press(Qt::Key_Space);
    EXPECT_EQ(inspector(), QRect(820, 8, 492, 824));
    EXPECT_EQ(countOf("InspectorPane"), 1);
    press(Qt::Key_K, Qt::ControlModifier);
    await(QAccessible::Dialog, u"Palette de commandes"_s);
    EXPECT_EQ(countOf("PalettePanel"), 1);
}

TEST_F(MainWindow, SpaceWhileTheInspectorIsCreatedAheadShowsTheIssue)
{
    press(Qt::Key_J);
    passStart();
    press(Qt::Key_Space);
    await(QAccessible::Heading, u"Résumé de MOB-1"_s);
    EXPECT_EQ(inspector(), QRect(820, 8, 492, 824));
    EXPECT_EQ(countOf("InspectorPane"), 1);
}

TEST_F(MainWindow, LongLabelsStayInsideTheInspector)
{
    Issue labelled = issueWithKey(u"MOB-1"_s);
    for (int i = 0; i < 12; ++i)
        labelled.labels += u"une-longue-etiquette-%1"_s.arg(i);
    serveIssues({labelled});
    reload();
    click(await(QAccessible::ListItem, u"MOB-1,"_s));

    const auto pane = inspector();
    const auto chips = spokenIn(window(), QAccessible::Button, u"Étiquettes : "_s);
    ASSERT_FALSE(chips.isEmpty());
    for (const auto &chip : chips)
        EXPECT_LE(chip.box.right(), pane.right());
}

TEST_F(MainWindow, TheInspectorComesInFromTheEdgeAndGoesOutWithItsIssueInIt)
{
    desktop->setPrefersReducedMotion(false);
    store().setInspectorKey(u"MOB-1"_s);
    const auto pane = [&] { return spokenIn(window(), QAccessible::Pane, u"Inspecteur"_s); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return !pane().isEmpty(); }));
    EXPECT_GT(pane().first().box.left(), 820);
    EXPECT_EQ(row().right() + 1, 808) << "the list gives way at once";
    EXPECT_TRUE(QTest::qWaitFor([&] { return pane().first().box == QRect(820, 8, 492, 824); }));

    store().setInspectorKey(std::nullopt);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pane().first().box.left() > 820; }));
    find(QAccessible::Heading, u"Résumé de MOB-1"_s);
    EXPECT_TRUE(isGone(QAccessible::Pane, u"Inspecteur"_s));
}

TEST_F(MainWindow, AnInspectorToggledTwiceOnItsWayEndsWhereItWasLastSent)
{
    desktop->setPrefersReducedMotion(false);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    settle();
    press(Qt::Key_Space);
    settle();
    press(Qt::Key_J);
    press(Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([&] { return inspector() == QRect(820, 8, 492, 824); }));
    find(QAccessible::Heading, u"Résumé de MOB-2"_s);

    press(Qt::Key_Space);
    settle();
    press(Qt::Key_Space);
    settle();
    press(Qt::Key_Space);
    EXPECT_TRUE(isGone(QAccessible::Pane, u"Inspecteur"_s));
    EXPECT_EQ(row().right() + 1, 1308);
    EXPECT_TRUE(find(QAccessible::List, u"Mes tickets"_s).state.focused);
}

TEST_F(MainWindow, WithLessMotionTheInspectorIsThereAtOnce)
{
    store().setInspectorKey(u"MOB-1"_s);
    EXPECT_EQ(inspector(), QRect(820, 8, 492, 824));
    store().setInspectorKey(std::nullopt);
    settle();
    EXPECT_TRUE(spokenIn(window(), QAccessible::Pane, u"Inspecteur"_s).isEmpty());
}

TEST_F(MainWindow, TheInspectorFollowsTheFocus)
{
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    await(QAccessible::Heading, u"Résumé de MOB-1"_s);
    press(Qt::Key_J);

    await(QAccessible::Heading, u"Résumé de MOB-2"_s);
    EXPECT_TRUE(isGone(QAccessible::Heading, u"Résumé de MOB-1"_s));
}

TEST_F(MainWindow, WhoWalksOnWaitsNoLongerForTheIssueBefore)
{
    service->issueCalls.hold();
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    await(QAccessible::Heading, u"Résumé de MOB-1"_s);
    press(Qt::Key_J);
    await(QAccessible::Heading, u"Résumé de MOB-2"_s);

    ASSERT_EQ(service->issueCalls.count(), 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return service->issueCalls[0].wasStopped(); }));
    EXPECT_FALSE(service->issueCalls[1].wasStopped());
}

TEST_F(MainWindow, Below1122TheSidebarHidesWhileTheInspectorIsOpen)
{
    resizeTo(1100);
    EXPECT_TRUE(hasSidebar());
    store().setInspectorKey(u"MOB-1"_s);
    settle();

    EXPECT_FALSE(hasSidebar());
    EXPECT_EQ(row().left(), 12);
    store().setInspectorKey(std::nullopt);
    EXPECT_TRUE(QTest::qWaitFor([&] { return hasSidebar(); }));
}

TEST_F(MainWindow, WhereThereIsNoRoomTheSidebarComesOverTheListAndGoesWithTheChoice)
{
    resizeTo(700);
    ASSERT_FALSE(hasSidebar());
    click(await(QAccessible::Button, u"Afficher la barre latérale"_s));
    click(await(QAccessible::ListItem, u"Créés par moi"_s));

    EXPECT_EQ(store().scope(), IssueScope::reported());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hasSidebar(); }));
}

TEST_F(MainWindow, APressBesideTheFloatingSidebarOnlyPutsItAway)
{
    resizeTo(700);
    click(await(QAccessible::Button, u"Afficher la barre latérale"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasSidebar(); }));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, {600, 110});

    EXPECT_TRUE(QTest::qWaitFor([&] { return !hasSidebar(); }));
    EXPECT_EQ(store().inspectorKey(), std::nullopt);
    EXPECT_TRUE(spokenIn(window(), QAccessible::Dialog).isEmpty());
}

TEST_F(MainWindow, HoweverTheFloatingSidebarGoesTheArrowsWalkTheIssues)
{
    resizeTo(700);
    const QList<std::function<void()>> waysToGo{
        [&] { click(await(QAccessible::ListItem, u"Créés par moi"_s)); },
        [&] { QTest::mouseClick(&window(), Qt::LeftButton, {}, {600, 110}); },
        [&] { press(Qt::Key_Escape); },
    };
    for (const auto &go : waysToGo) {
        click(await(QAccessible::Button, u"Afficher la barre latérale"_s));
        ASSERT_TRUE(QTest::qWaitFor([&] { return hasSidebar(); }));
        go();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !hasSidebar(); }));
        const auto scope = store().scope();
        row();
        press(Qt::Key_Down);

        EXPECT_EQ(store().scope(), scope);
        EXPECT_TRUE(store().focusedKey());
        store().setFocusedKey(std::nullopt);
    }
}

TEST_F(MainWindow, ASidebarThatHasToHideLeavesTheKeyboardToTheIssues)
{
    resizeTo(1100);
    press(Qt::Key_Down);
    for (int i = 0; i < 30 && !isInSidebar(); ++i)
        press(Qt::Key_Tab);
    ASSERT_TRUE(isInSidebar());
    press(Qt::Key_Space);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !hasSidebar(); }));
    press(Qt::Key_Down);

    EXPECT_EQ(store().scope(), IssueScope::myIssues());
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
}

TEST_F(MainWindow, AtHalfOfASmallScreenTheInspectorTakesTheListsPlace)
{
    resizeTo(640);
    click(await(QAccessible::ListItem, u"MOB-1,"_s));

    EXPECT_EQ(inspector(), QRect(8, 8, 624, 824));
    EXPECT_TRUE(rowsShown().isEmpty());
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown().size() == 2; }));
}

TEST_F(MainWindow, TheSearchFieldShortensAndThenFoldsIntoItsSymbol)
{
    EXPECT_EQ(await(QAccessible::EditableText, u"Filtrer"_s).box.width(), 190);
    store().setInspectorKey(u"MOB-1"_s);
    settle();
    EXPECT_EQ(await(QAccessible::EditableText, u"Filtrer"_s).box.width(), 120);
    store().setInspectorKey(std::nullopt);
    resizeTo(480);

    const auto symbols = spokenIn(window(), QAccessible::Button, u"Filtrer"_s);
    ASSERT_FALSE(symbols.isEmpty());
    click(symbols.constLast());
    type(u"mob-2"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-2"_s}; }));
}

TEST_F(MainWindow, TheEdgeOfTheSidebarIsDraggedWithinItsBounds)
{
    const auto edge = await(QAccessible::Splitter, u"Largeur de la barre latérale"_s);
    const QPoint from(240, 500);
    ASSERT_TRUE(edge.box.contains(from));
    QTest::mousePress(&window(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&window(), from + QPoint(20, 0));
    QTest::mouseMove(&window(), from + QPoint(40, 0));
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, from + QPoint(40, 0));
    settle();
    EXPECT_EQ(row().left(), 292);

    QTest::mousePress(&window(), Qt::LeftButton, {}, {280, 500});
    QTest::mouseMove(&window(), {300, 500});
    QTest::mouseMove(&window(), {900, 500});
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, {900, 500});
    settle();
    EXPECT_EQ(row().left(), 320 + 12);
}

TEST_F(MainWindow, WithIssuesCheckedTheToastsStandOverTheMiddleOfTheIssues)
{
    store().setInspectorKey(u"MOB-1"_s);
    settle();
    store().cycleAppearance();
    const auto toast = await(QAccessible::Notification, u"Apparence"_s);

    // Halfway between the sidebar, which ends at 240, and the inspector, which begins at 820.
    EXPECT_NEAR(toast.box.center().x(), 530, 1);
}
