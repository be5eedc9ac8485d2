#include "app/WindowFixture.h"
#include "screens/kit/layers/OwnKeys.h"
#include "shell/sidebar/Workspace.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class Sidebar : public WindowFixture
{
protected:
    Sidebar()
    {
        serve({});
        openOnDemo();
    }

    /// The visible focus ring below an item.
    static const QQuickItem *ringBelow(const QQuickItem &parent)
    {
        for (const QQuickItem *child : parent.childItems()) {
            if (child->isVisible() &&
                QString::fromLatin1(child->metaObject()->className()).startsWith(u"FocusRing"_s))
                return child;
            if (const auto *found = ringBelow(*child))
                return found;
        }
        return nullptr;
    }

    /// The focus is on a list that handles the arrow keys itself, or on one of its rows.
    bool isWalking()
    {
        const auto *item = window().activeFocusItem();
        return item && OwnKeys::isInWalkedList(*item);
    }
};

TEST_F(Sidebar, AClickOnARowSelectsItsScope)
{
    click(find(QAccessible::ListItem, u"Créés par moi"_s));

    EXPECT_EQ(store().scope(), IssueScope::reported());
    EXPECT_EQ(store().scopeTitle(), u"Créés par moi"_s);
}

TEST_F(Sidebar, TabReachesTheRowsAndTheArrowsWalkThem)
{
    for (int i = 0; i < 20 && !isWalking(); ++i)
        press(Qt::Key_Tab);
    ASSERT_TRUE(isWalking());

    press(Qt::Key_Down);
    EXPECT_EQ(store().scope(), IssueScope::recent());
    press(Qt::Key_Down);
    EXPECT_EQ(store().scope(), IssueScope::reported());
    press(Qt::Key_Down);
    EXPECT_EQ(store().scope(), IssueScope::activity({ActivityRange::Week, 0, false}));
    press(Qt::Key_Up);
    EXPECT_EQ(store().scope(), IssueScope::reported());
}

TEST_F(Sidebar, TheFocusRingOfARowIsCutNowhere)
{
    for (int i = 0; i < 20 && !isWalking(); ++i)
        press(Qt::Key_Tab);
    ASSERT_TRUE(isWalking());
    settle();

    const auto *ring = ringBelow(*window().activeFocusItem());
    ASSERT_TRUE(ring);
    const QRectF box = ring->mapRectToScene(ring->boundingRect());
    for (const auto *item = ring->parentItem(); item; item = item->parentItem()) {
        if (item->clip())
            EXPECT_TRUE(item->mapRectToScene(item->boundingRect()).contains(box));
    }
}

TEST_F(Sidebar, TheTitleOfASectionCannotBePressedAndARowCan)
{
    ASSERT_EQ(find(QAccessible::Heading, u"Projets"_s).name, u"Projets"_s);
    store().select(IssueScope::recent());

    EXPECT_FALSE(pressAction(window(), QAccessible::Heading, u"Projets"_s));
    EXPECT_EQ(store().scope(), IssueScope::recent());
    EXPECT_TRUE(pressAction(window(), QAccessible::ListItem, u"Créés par moi"_s));
    EXPECT_EQ(store().scope(), IssueScope::reported());
}

TEST_F(Sidebar, AProjectsViewsStandUnderItWhileItIsShown)
{
    EXPECT_TRUE(spokenIn(window(), QAccessible::ListItem, u"Sprint actif"_s).isEmpty());

    click(find(QAccessible::ListItem, u"App mobile"_s));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return !spokenIn(window(), QAccessible::ListItem, u"Sprint actif"_s).isEmpty(); }));
    click(find(QAccessible::ListItem, u"Sprint actif"_s));

    EXPECT_EQ(store().scope(), IssueScope::project(u"MOB"_s, ProjectView::Active));
}

TEST_F(Sidebar, AProjectBecomesAFavouriteThroughItsMenu)
{
    QTest::mouseClick(&window(), Qt::RightButton, {},
                      find(QAccessible::ListItem, u"App mobile"_s).box.center());
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return !spokenIn(window(), QAccessible::MenuItem, u"favoris"_s).isEmpty(); }));
    click(find(QAccessible::MenuItem, u"Ajouter aux favoris"_s));

    EXPECT_EQ(store().favoriteProjects(), QStringList{u"MOB"_s});
    find(QAccessible::Heading, u"Favoris"_s);
}

TEST_F(Sidebar, TheMenuOfTheSiteHasItsEntriesInTheirOrder)
{
    QSignalSpy settings(&store(), &AppStore::settingsRequested);
    click(find(QAccessible::Button, u"Espace"_s));
    await(QAccessible::MenuItem, u"Quitter le mode démo"_s);

    auto entries = spokenIn(window(), QAccessible::MenuItem);
    std::ranges::sort(entries, {}, [](const Spoken &entry) { return entry.box.top(); });
    QStringList names;
    for (const auto &entry : entries)
        names += entry.name;
    EXPECT_EQ(names, (QStringList{u"Noam Talvère"_s, u"Réglages…"_s,
                                  u"Ouvrir "_s + store().siteName(), u"Quitter le mode démo"_s}));

    click(find(QAccessible::MenuItem, u"Réglages…"_s));
    EXPECT_EQ(settings.count(), 1);
}

TEST_F(Sidebar, TheKeyboardOpensTheMenuOfTheProjectThatIsShown)
{
    click(find(QAccessible::ListItem, u"App mobile"_s));
    await(QAccessible::ListItem, u"Sprint actif"_s);
    const auto row = spokenIn(window(), QAccessible::ListItem, u"App mobile"_s).first();
    for (int i = 0; i < 20 && !isWalking(); ++i)
        press(Qt::Key_Tab);
    ASSERT_TRUE(isWalking());

    press(Qt::Key_F10, Qt::ShiftModifier);
    const auto entry = await(QAccessible::MenuItem, u"Ajouter aux favoris"_s);
    EXPECT_NEAR(entry.box.top(), row.box.bottom(), 20);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::MenuItem, {}));
    press(Qt::Key_Menu);
    await(QAccessible::MenuItem, u"Ajouter aux favoris"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(store().favoriteProjects(), QStringList{u"MOB"_s});
}

TEST_F(Sidebar, TheBadgeOfTheDemoOpensTheSettingsAndKeepsTheDemo)
{
    QSignalSpy settings(&store(), &AppStore::settingsRequested);
    click(find(QAccessible::Button, u"Mode démo, connecter Jira"_s));

    EXPECT_EQ(settings.count(), 1);
    EXPECT_TRUE(store().isDemo());
    EXPECT_EQ(store().phase(), AppStore::Phase::Ready);
}

TEST_F(Sidebar, OnARowWithoutAMenuTheMenuKeyDoesNothing)
{
    for (int i = 0; i < 20 && !isWalking(); ++i)
        press(Qt::Key_Tab);
    ASSERT_TRUE(isWalking());
    press(Qt::Key_Menu);
    settle();

    EXPECT_TRUE(spokenIn(window(), QAccessible::MenuItem).isEmpty());
}

class SidebarOfTwoProjects : public WindowFixture
{
protected:
    SidebarOfTwoProjects()
    {
        beforeOpening = [this] {
            service->projectsCalls.answerWith(
                {Project{u"1"_s, u"MOB"_s, u"App mobile"_s, {}, {}, false},
                 Project{u"2"_s, u"WEB"_s, u"Plateforme web"_s, {}, {}, false}});
        };
        serve({});
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
    }

    /// A click that is the second of a double click if the one before was at the same place. The clicks of `QTest` are
    /// too far apart for that.
    void clickSoon(QPoint place)
    {
        const auto send = [&](Qt::MouseButtons buttons, QEvent::Type type) {
            qt_handleMouseEvent(&window(), place, window().mapToGlobal(place), buttons,
                                Qt::LeftButton, type, {}, ++QTest::lastMouseTimestamp);
            QCoreApplication::processEvents();
        };
        send(Qt::LeftButton, QEvent::MouseButtonPress);
        send(Qt::NoButton, QEvent::MouseButtonRelease);
    }
};

TEST_F(SidebarOfTwoProjects, TheSecondPressOfADoubleClickSelectsNoRowThatHasMovedUnderThePointer)
{
    click(find(QAccessible::ListItem, u"App mobile"_s));
    await(QAccessible::ListItem, u"Sprint actif"_s);
    const QPoint place = find(QAccessible::ListItem, u"Plateforme web"_s).box.center();
    QTest::mouseMove(&window(), place);

    clickSoon(place);
    settle();
    const auto chosen = store().scope();
    ASSERT_TRUE(chosen.asProject());
    ASSERT_EQ(chosen.asProject()->key, u"WEB"_s);
    // The names of the rows below the project contain its name as well.
    const auto rows = spokenIn(window(), QAccessible::ListItem, u"Plateforme web"_s);
    ASSERT_FALSE(rows.first().box.contains(place)) << "the click moves the row away";
    clickSoon(place);
    settle();

    EXPECT_EQ(store().scope(), chosen);
}

TEST(NeighbourRow, TitlesAndPlaceholdersAreSteppedOver)
{
    const QList<SidebarRow> rows = sidebarRows({});
    const auto indexOf = [&](const QString &text) {
        return int(std::ranges::find(rows, text, &SidebarRow::text) - rows.begin());
    };

    EXPECT_EQ(neighbourRow(rows, indexOf(u"Créés par moi"_s), 1), indexOf(u"Cette semaine"_s));
    EXPECT_EQ(neighbourRow(rows, indexOf(u"Semaine dernière"_s), 1),
              indexOf(u"Semaine dernière"_s));
    EXPECT_EQ(neighbourRow(rows, indexOf(u"Mes tickets"_s), -1), indexOf(u"Mes tickets"_s));
    EXPECT_EQ(neighbourRow(rows, -1, 1), indexOf(u"Mes tickets"_s));
    EXPECT_EQ(neighbourRow(rows, -1, -1), indexOf(u"Semaine dernière"_s));
}

TEST(NeighbourRow, ARowOfTheSameScopeIsSteppedOver)
{
    SidebarInputs inputs;
    inputs.projects = {Project{u"1"_s, u"MOB"_s, u"App mobile"_s, {}, {}, false}};
    inputs.scope = IssueScope::project(u"MOB"_s, ProjectView::All);
    const QList<SidebarRow> rows = sidebarRows(inputs);
    const int tickets = int(std::ranges::find_if(rows, &SidebarRow::isSelected) - rows.begin());
    ASSERT_EQ(rows[tickets].text, u"Tickets"_s);

    EXPECT_EQ(rows[neighbourRow(rows, tickets, -1)].text, u"Semaine dernière"_s);
    EXPECT_EQ(rows[neighbourRow(rows, tickets, 1)].text, u"Sprint actif"_s);
}
