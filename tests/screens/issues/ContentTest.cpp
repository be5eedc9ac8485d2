#include "app/WindowFixture.h"
#include "model/JiraError.h"

#include <QTest>

using namespace Qt::StringLiterals;

class Content : public WindowFixture
{
protected:
    void refreshFails(const JiraError &error)
    {
        service->issuesCalls.failWith(error);
        reload();
    }
};

TEST_F(Content, BeforeTheFirstAnswerASkeletonStands)
{
    openOnDemo();

    ASSERT_TRUE(store().isLoading());
    find(QAccessible::Indicator, u"Chargement"_s);
}

TEST_F(Content, AFailedFirstLoadSaysWhyAndOffersToTryAgain)
{
    service->issuesCalls.failWith(JiraError(JiraError::Http{503, u"Jira se repose."_s}));
    openOnDemo();

    find(QAccessible::StaticText, u"Impossible de charger les tickets"_s);
    serve({u"MOB-1"_s});
    click(find(QAccessible::Button, u"Réessayer"_s));

    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-1"_s}; }));
}

TEST_F(Content, ALoadErrorWithCachedIssuesShowsTheIssues)
{
    serve({u"MOB-1"_s});
    openOnDemo();

    refreshFails(JiraError(JiraError::Http{500, {}}));

    EXPECT_EQ(rowsShown(), QStringList{u"MOB-1"_s});
    EXPECT_TRUE(spokenIn(window(), QAccessible::StaticText, u"Impossible"_s).isEmpty());
}

TEST_F(Content, AnEmptyListSaysThatThereIsNothingToDo)
{
    serve({});
    openOnDemo();

    find(QAccessible::StaticText, u"Rien à faire ici"_s);
}

TEST_F(Content, EmptyAfterASearchOffersToClearIt)
{
    serve({u"MOB-1"_s});
    openOnDemo();

    store().setFilterText(u"introuvable"_s);
    find(QAccessible::StaticText, u"Aucun ticket ne correspond"_s);
    click(find(QAccessible::Button, u"Effacer les filtres"_s));

    EXPECT_EQ(store().filterText(), QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-1"_s}; }));
}

TEST_F(Content, EmptyAfterASearchSaysSoEvenInARecap)
{
    serve({u"MOB-1"_s});
    openOnDemo();
    store().select(IssueScope::activity({ActivityRange::Week, 0, false}));
    store().setFilterText(u"introuvable"_s);

    find(QAccessible::StaticText, u"Aucun ticket ne correspond"_s);
    EXPECT_TRUE(spokenIn(window(), QAccessible::StaticText, u"Aucune activité"_s).isEmpty());
}

TEST_F(Content, AnEmptyRecapOffersThePeriodBefore)
{
    serve({});
    openOnDemo();
    store().select(IssueScope::activity({ActivityRange::Week, 0, false}));

    find(QAccessible::StaticText, u"Aucun ticket traité du 26 oct. au 1 nov. 2026 par toi."_s);
    click(spokenIn(window(), QAccessible::Button, u"Semaine précédente"_s).constLast());

    EXPECT_EQ(store().scope(), IssueScope::activity({ActivityRange::Week, -1, false}));
}

TEST_F(Content, ATextTypedOverAnEmptyRecapCanBeClearedAgain)
{
    serve({});
    openOnDemo();
    const auto scope = IssueScope::activity({ActivityRange::Week, 0, false});
    store().select(scope);
    await(QAccessible::StaticText, u"Aucune activité"_s);

    store().setFilterText(u"jeton"_s);
    await(QAccessible::StaticText, u"Aucun ticket ne correspond"_s);
    click(find(QAccessible::Button, u"Effacer les filtres"_s));

    EXPECT_EQ(store().filterText(), QString());
    EXPECT_EQ(store().scope(), scope);
    await(QAccessible::StaticText, u"Aucune activité"_s);
}

TEST_F(Content, WithItsFilterTheScreenThatOffersToClearItGoes)
{
    serve({});
    openOnDemo();
    store().setFilterText(u"jeton"_s);
    store().select(IssueScope::reported());
    await(QAccessible::StaticText, u"Aucun ticket ne correspond"_s);
    press(Qt::Key_Escape);

    await(QAccessible::StaticText, u"Rien à faire ici"_s);
    EXPECT_TRUE(spokenIn(window(), QAccessible::Button, u"Effacer les filtres"_s).isEmpty());
}

TEST_F(Content, AnEmptyTeamRecapLeavesTheUserOut)
{
    serve({});
    openOnDemo();
    store().select(IssueScope::activity({ActivityRange::Month, 0, true}));

    find(QAccessible::StaticText, u"Aucun ticket traité du 1 oct. au 31 oct. 2026."_s);
}

TEST_F(Content, ASingleIssueIsCountedInTheSingular)
{
    serve({u"MOB-1"_s});
    openOnDemo();

    EXPECT_EQ(store().subtitle(), u"1 ticket"_s);
    find(QAccessible::StaticText, u"1 ticket"_s);
}

TEST_F(Content, EveryRowSpeaksASentence)
{
    serve({u"MOB-1"_s});
    openOnDemo();

    find(QAccessible::ListItem, u"MOB-1, Résumé de MOB-1, À faire"_s);
}

TEST_F(Content, NothingThatTakesTheFocusIsWithoutAName)
{
    serve({u"MOB-1"_s, u"MOB-2"_s});
    openOnDemo();

    for (const auto &thing : spokenIn(window())) {
        if (thing.state.focusable)
            EXPECT_FALSE(thing.name.isEmpty()) << "role " << thing.role;
    }
}
