#include "app/WindowFixture.h"
#include "shell/Workspace.h"

#include <QQuickItem>
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

    /// The focus is on a list that walks its own rows, or on one of them.
    bool isWalking()
    {
        for (QQuickItem *item = window().activeFocusItem(); item; item = item->parentItem()) {
            if (item->property("walksItsRows").toBool())
                return true;
        }
        return false;
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
