#include "screens/issues/toolbar/FilterMenus.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

SharedIssue typed(const QString &typeId, const QString &typeName)
{
    Issue issue;
    issue.key = u"MOB-"_s + typeId;
    issue.type = IssueType{typeId, typeName};
    return issue;
}

/// Two statuses, two people, two labels; "Bug" is the name of two types.
struct Site
{
    IssueDerivationMenus menus{
        {IssueStatus::guessed(u"À faire"_s), IssueStatus::guessed(u"En cours"_s)},
        {{u"u1"_s, u"Ada"_s, {}, {}}, {u"u2"_s, u"Noam"_s, {}, {}}},
        {u"api"_s, u"auth"_s},
        {{u"1"_s, u"Bug"_s}, {u"3"_s, u"Tâche"_s}}};
    IssueList issues{typed(u"1"_s, u"Bug"_s), typed(u"2"_s, u"Bug"_s), typed(u"3"_s, u"Tâche"_s)};

    FilterSources sources() const { return {menus, issues, QLocale(QLocale::French)}; }
};

QStringList titles(const QList<MenuChoice> &choices)
{
    QStringList list;
    for (const auto &choice : choices)
        list += choice.title;
    return list;
}

QStringList titles(const QList<MenuSection> &sections)
{
    QStringList list;
    for (const auto &section : sections)
        list += section.title;
    return list;
}

QString onlyValue(const IssueFilters &filters, const FilterSources &sources)
{
    const auto chips = filterChips(filters, sources);
    return chips.size() == 1 ? chips.first().value : u"%1 chips"_s.arg(chips.size());
}

} // namespace

TEST(FilterSections, TheFiveKindsStandInTheirOrder)
{
    const Site site;
    const auto sections = filterSections({}, site.sources());

    EXPECT_EQ(titles(sections),
              (QStringList{u"Statut"_s, u"Priorité"_s, u"Assigné"_s, u"Étiquette"_s, u"Type"_s}));
    EXPECT_EQ(titles(sections[0].choices), (QStringList{u"À faire"_s, u"En cours"_s}));
    EXPECT_EQ(titles(sections[1].choices), (QStringList{u"Urgente"_s, u"Haute"_s, u"Moyenne"_s,
                                                        u"Basse"_s, u"Aucune priorité"_s}));
    EXPECT_EQ(titles(sections[2].choices), (QStringList{u"Non assigné"_s, u"Ada"_s, u"Noam"_s}));
    EXPECT_EQ(titles(sections[4].choices), (QStringList{u"Bug"_s, u"Tâche"_s}));
}

TEST(FilterSections, InAListWithNoLabelsTheLabelSubmenuIsMissing)
{
    Site site;
    site.menus.labels.clear();
    site.menus.types.clear();

    EXPECT_EQ(titles(filterSections({}, site.sources())),
              (QStringList{u"Statut"_s, u"Priorité"_s, u"Assigné"_s}));
}

TEST(FilterSections, WhatIsChosenHasATick)
{
    const Site site;
    IssueFilters filters;
    filters.statuses = {u"inprogress"_s};
    filters.types = {u"2"_s};

    const auto sections = filterSections(filters, site.sources());

    EXPECT_FALSE(sections[0].choices[0].isOn);
    EXPECT_TRUE(sections[0].choices[1].isOn);
    EXPECT_TRUE(sections[4].choices[0].isOn) << "any type of the name counts";
    EXPECT_FALSE(sections[4].choices[1].isOn);
}

TEST(FilterChips, EachFilledSetHasOneChipInTheOrderOfTheMenu)
{
    const Site site;
    IssueFilters filters;
    filters.types = {u"1"_s};
    filters.labels = {u"auth"_s, u"api"_s};
    filters.assignees = {u"u2"_s, IssueFilters::unassigned};
    filters.priorities = {PriorityLevel::None, PriorityLevel::Urgent};
    filters.statuses = {u"inprogress"_s, u"todo"_s};

    EXPECT_EQ(filterChips(filters, site.sources()),
              (QList<FilterChip>{{u"status"_s, u"Statut"_s, u"À faire, En cours"_s},
                                 {u"priority"_s, u"Priorité"_s, u"Urgente, Aucune priorité"_s},
                                 {u"assignee"_s, u"Assigné"_s, u"Non assigné, Noam"_s},
                                 {u"labels"_s, u"Étiquette"_s, u"api, auth"_s},
                                 {u"types"_s, u"Type"_s, u"Bug"_s}}));
    EXPECT_TRUE(filterChips({}, site.sources()).isEmpty());
}

TEST(FilterChips, AStatusThatLeftTheListKeepsAChipWithTheCount)
{
    const Site site;
    IssueFilters filters;
    filters.statuses = {u"gone"_s, u"alsogone"_s};

    EXPECT_EQ(onlyValue(filters, site.sources()), u"2"_s);

    filters.statuses.insert(u"todo"_s);
    EXPECT_EQ(onlyValue(filters, site.sources()), u"À faire"_s);
}

TEST(FilterChips, LabelsThatLeftTheListKeepTheirNames)
{
    Site site;
    IssueFilters filters;
    filters.labels = {u"web"_s, u"api"_s, u"Équipe"_s};

    EXPECT_EQ(onlyValue(filters, site.sources()), u"api, Équipe, web"_s);

    site.menus.labels.clear();
    EXPECT_EQ(onlyValue(filters, site.sources()), u"api, Équipe, web"_s);
}

TEST(ToggledFilter, AChoiceGoesInAndOutAgain)
{
    const Site site;
    const QList<std::pair<FilterSet, QString>> choices{{FilterSet::Statuses, u"todo"_s},
                                                       {FilterSet::Priorities, u"1"_s},
                                                       {FilterSet::Assignees, u"u1"_s},
                                                       {FilterSet::Labels, u"api"_s},
                                                       {FilterSet::Types, u"Tâche"_s}};
    for (const auto &[set, choice] : choices) {
        const auto with = toggledFilter({}, set, choice, site.sources());
        EXPECT_FALSE(with.isEmpty()) << int(set);
        EXPECT_TRUE(toggledFilter(with, set, choice, site.sources()).isEmpty()) << int(set);
    }
    EXPECT_EQ(toggledFilter({}, FilterSet::Priorities, u"1"_s, site.sources()).priorities,
              QSet{PriorityLevel::High});
}

TEST(ToggledFilter, ATypeStandsForAllTypesOfItsName)
{
    const Site site;
    EXPECT_EQ(toggledFilter({}, FilterSet::Types, u"Bug"_s, site.sources()).types,
              (QSet<QString>{u"1"_s, u"2"_s}));
}

TEST(EmptiedFilter, OnlyItsOwnSetIsEmptied)
{
    IssueFilters filters;
    filters.labels = {u"api"_s};
    filters.assignees = {u"u1"_s};

    const auto rest = emptiedFilter(filters, FilterSet::Labels);

    EXPECT_TRUE(rest.labels.isEmpty());
    EXPECT_EQ(rest.assignees, QSet<QString>{u"u1"_s});
}

TEST(FilterSetId, EachLeadsBackToItsSet)
{
    for (const auto set : {FilterSet::Statuses, FilterSet::Priorities, FilterSet::Assignees,
                           FilterSet::Labels, FilterSet::Types})
        EXPECT_EQ(filterSetFromId(filterSetId(set)), set);
    EXPECT_EQ(filterSetFromId(u"other"_s), std::nullopt);
}
