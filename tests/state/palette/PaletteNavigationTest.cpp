#include "state/palette/PaletteNavigation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Project project(const QString &key, const QString &name)
{
    Project project;
    project.key = key;
    project.name = name;
    return project;
}

IssueScope scopeOf(const OptionItem &item)
{
    return std::get<OptionAction::Select>(item.run.value).scope;
}

QString symbolOf(const OptionItem &item)
{
    return std::get<OptionIcon::Symbol>(item.icon.value).name;
}

} // namespace

TEST(PaletteNavigation, OwnListsAndRecapsComeFirst)
{
    const auto recap = [](ActivityRange range, int offset) {
        return IssueScope::activity({range, offset, false});
    };
    struct Expected
    {
        QString id, title, symbol;
        IssueScope scope;
    };
    const QList<Expected> expected{
        {u"go-mine"_s, u"Mes tickets"_s, u"tray.full"_s, IssueScope::myIssues()},
        {u"go-recent"_s, u"Récemment consultés"_s, u"clock"_s, IssueScope::recent()},
        {u"go-reported"_s, u"Créés par moi"_s, u"square.and.pencil"_s, IssueScope::reported()},
        {u"go-this-week"_s, u"Activité · Cette semaine"_s, u"calendar"_s,
         recap(ActivityRange::Week, 0)},
        {u"go-last-week"_s, u"Activité · Semaine dernière"_s, u"calendar.badge.clock"_s,
         recap(ActivityRange::Week, -1)},
        {u"go-this-month"_s, u"Activité · Ce mois-ci"_s, u"calendar"_s,
         recap(ActivityRange::Month, 0)},
        {u"go-last-month"_s, u"Activité · Le mois dernier"_s, u"calendar"_s,
         recap(ActivityRange::Month, -1)}};
    const auto items = paletteNavigation({}, Recap::People::Me);
    ASSERT_EQ(items.size(), expected.size());
    for (qsizetype i = 0; i < items.size(); ++i) {
        EXPECT_EQ(items[i].id, expected[i].id);
        EXPECT_EQ(items[i].title, expected[i].title);
        EXPECT_EQ(symbolOf(items[i]), expected[i].symbol);
        EXPECT_EQ(scopeOf(items[i]), expected[i].scope);
        EXPECT_FALSE(items[i].subtitle);
        EXPECT_FALSE(items[i].keepsOpen);
    }
}

TEST(PaletteNavigation, RecapsAreTheTeamsWhileTheSwitchSaysSo)
{
    const auto items = paletteNavigation({}, Recap::People::Team);
    for (qsizetype i = 3; i < 7; ++i)
        EXPECT_TRUE(scopeOf(items[i]).asActivity()->teamWide) << i;
}

TEST(PaletteNavigation, EachProjectIsFollowedByItsSprint)
{
    const auto web = project(u"WEB"_s, u"Plateforme web"_s);
    const auto items =
        paletteNavigation({web, project(u"DS"_s, u"Design System"_s)}, Recap::People::Me);
    ASSERT_EQ(items.size(), 11);
    EXPECT_EQ(items[7].id, u"go-WEB"_s);
    EXPECT_EQ(items[7].title, u"Plateforme web"_s);
    EXPECT_EQ(items[7].subtitle, u"WEB"_s);
    EXPECT_EQ(items[7].icon, OptionIcon{web});
    EXPECT_EQ(scopeOf(items[7]), IssueScope::project(u"WEB"_s, ProjectView::All));
    EXPECT_EQ(items[8].id, u"go-WEB-sprint"_s);
    EXPECT_EQ(items[8].title, u"Plateforme web · Sprint actif"_s);
    EXPECT_EQ(items[8].subtitle, u"WEB"_s);
    EXPECT_EQ(symbolOf(items[8]), u"arrow.triangle.2.circlepath"_s);
    EXPECT_EQ(scopeOf(items[8]), IssueScope::project(u"WEB"_s, ProjectView::Active));
    EXPECT_EQ(items[9].id, u"go-DS"_s);
}
