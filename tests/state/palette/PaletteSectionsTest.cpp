#include "state/palette/PaletteNavigation.h"
#include "state/palette/PaletteRow.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

OptionItem item(const QString &title, const std::optional<QString> &subtitle = {})
{
    return {.id = title, .title = title, .subtitle = subtitle};
}

SearchableItems actions(const QList<OptionItem> &items)
{
    return {items, SearchableItems::Texts::Title};
}

SearchableItems destinations(const QList<OptionItem> &items)
{
    return {items, SearchableItems::Texts::TitleAndSubtitle};
}

QStringList titles(const QList<OptionItem> &items)
{
    QStringList list;
    for (const auto &one : items)
        list += one.title;
    return list;
}

QStringList titles(const QList<PaletteSection> &sections)
{
    QStringList list;
    for (const auto &section : sections)
        list += section.title;
    return list;
}

Issue issue(const QString &key)
{
    Issue issue;
    issue.key = key;
    issue.summary = key;
    return issue;
}

const PaletteMode::Picker labels{PickerKind::Labels, {u"MOB-1"_s}};

QStringList labelRows(const QString &query, const QStringList &known)
{
    QList<OptionItem> options;
    for (const auto &label : known)
        options += item(label);
    QList<OptionItem> rows;
    for (const auto &section : pickerSections(query, labels, actions(options)))
        rows += section.items;
    return titles(rows);
}

} // namespace

TEST(PaletteSections, ALigatureAndItsTwoLettersFindEachOther)
{
    const auto rows = actions({item(u"Mise en œuvre"_s), item(u"Mise en oeuvre"_s)});
    EXPECT_EQ(rows.matching(u"oeuvre"_s).size(), 2);
    EXPECT_EQ(rows.matching(u"Œuvre"_s).size(), 2);
}

TEST(PaletteSections, ALabelWithALigatureIsAnotherThanOneWithItsTwoLetters)
{
    EXPECT_EQ(labelRows(u"oeuvre"_s, {u"œuvre"_s}).size(), 2);
    EXPECT_EQ(labelRows(u"oeuvre"_s, {u"oeuvre"_s}).size(), 1);
}

TEST(PaletteSections, TheOrderIsIssuesActionsDestinationsAndEmptyOnesAreLeftOut)
{
    const auto copy = actions({item(u"Copier la clé"_s)});
    const auto mine = destinations({item(u"Mes copies"_s)});
    EXPECT_EQ(titles(rootSections(u"cop"_s, {issue(u"MOB-1"_s)}, copy, mine)),
              (QStringList{u"Tickets"_s, u"Actions"_s, u"Aller à"_s}));
    EXPECT_EQ(titles(rootSections(u"clé"_s, {}, copy, mine)), QStringList{u"Actions"_s});
    EXPECT_TRUE(rootSections(u"introuvable"_s, {}, copy, mine).isEmpty());
}

TEST(PaletteSections, WithAnEmptyQueryExactlySixDestinationsStandWhateverTheNumberOfProjects)
{
    for (const int count : {0, 1, 500}) {
        QList<Project> projects(count);
        const auto sections = rootSections(
            u"  "_s, {}, {}, destinations(paletteNavigation(projects, Recap::People::Me)));
        ASSERT_EQ(sections.size(), 1);
        EXPECT_EQ(sections[0].items.size(), 6) << count;
        EXPECT_EQ(sections[0].items.last().id, u"go-this-month"_s);
    }
}

TEST(PaletteSections, ActionsAreFoundByTheirTitleDestinationsAlsoByTheirSubtitle)
{
    const auto known = actions({item(u"Étiquettes…"_s, u"MOB"_s)});
    const auto projects = destinations({item(u"App mobile"_s, u"MOB"_s), item(u"Web"_s, u"WEB"_s)});
    const auto sections = rootSections(u" mob "_s, {}, known, projects);
    ASSERT_EQ(titles(sections), QStringList{u"Aller à"_s});
    EXPECT_EQ(titles(sections[0].items), QStringList{u"App mobile"_s});
    EXPECT_EQ(titles(rootSections(u"ETIQ"_s, {}, known, projects)), QStringList{u"Actions"_s});
}

TEST(PaletteSections, NoQueryReachesFromTheTitleIntoTheSubtitle)
{
    const auto projects = destinations({item(u"App"_s, u"MOB"_s)});
    EXPECT_TRUE(rootSections(u"appmob"_s, {}, {}, projects).isEmpty());
}

TEST(PaletteSections, ADiacriticAloneIsContainedNowhere)
{
    EXPECT_TRUE(rootSections(u"\u0301"_s, {}, actions({item(u"Créer"_s)}), {}).isEmpty());
}

TEST(PaletteSections, APickerSearchesTitlesOnlyInTheirOrder)
{
    const PaletteMode::Picker picker{PickerKind::Assignee, {u"MOB-1"_s}};
    const auto options = actions({item(u"Zoé"_s, u"Moi"_s), item(u"Émoi"_s), item(u"Ada"_s)});
    const auto sections = pickerSections(u"moi"_s, picker, options);
    ASSERT_EQ(sections.size(), 1);
    EXPECT_EQ(titles(sections[0].items), QStringList{u"Émoi"_s});
    EXPECT_EQ(titles(pickerSections(u" "_s, picker, options)[0].items),
              (QStringList{u"Zoé"_s, u"Émoi"_s, u"Ada"_s}));
}

TEST(PaletteSections, AnUnknownLabelIsOfferedLastWithHyphensForBlanks)
{
    EXPECT_EQ(labelRows(u" bug fix  2 "_s, {u"auth"_s}),
              QStringList{u"Créer l'étiquette « bug-fix--2 »"_s});
    EXPECT_EQ(labelRows(u"au"_s, {u"auth"_s}),
              (QStringList{u"auth"_s, u"Créer l'étiquette « au »"_s}));
}

TEST(PaletteSections, ALabelThatExistsInAnyCaseIsNotOfferedAgain)
{
    EXPECT_EQ(labelRows(u"AUTH"_s, {u"auth"_s, u"ios"_s}), QStringList{u"auth"_s});
}

TEST(PaletteSections, TheComparisonIsMadeBeforeTheHyphens)
{
    EXPECT_EQ(labelRows(u"bug fix"_s, {u"bug-fix"_s}),
              QStringList{u"Créer l'étiquette « bug-fix »"_s});
}

TEST(PaletteSections, WithoutAWordNoLabelIsMade)
{
    EXPECT_EQ(labelRows(u"  "_s, {u"auth"_s}), QStringList{u"auth"_s});
}

TEST(PaletteSections, OnlyLabelsAreMade)
{
    const PaletteMode::Picker picker{PickerKind::Status, {u"MOB-1"_s}};
    const auto sections = pickerSections(u"nouveau"_s, picker, actions({item(u"En cours"_s)}));
    EXPECT_TRUE(paletteRows(sections).isEmpty());
}

TEST(PaletteSections, MakingALabelKeepsThePickerOpen)
{
    const auto rows = paletteRows(pickerSections(u"bug fix"_s, labels, {}));
    ASSERT_EQ(rows.size(), 1);
    EXPECT_TRUE(rows[0].option.keepsOpen);
    EXPECT_EQ(rows[0].option.id, u"create-label"_s);
    EXPECT_EQ(rows[0].option.run,
              (OptionAction{OptionAction::AddLabel{u"bug-fix"_s, {u"MOB-1"_s}}}));
}

TEST(PaletteRows, OnlyTheFirstRowOfASectionBearsItsTitle)
{
    const auto rows = paletteRows({{u"actions"_s, u"Actions"_s, {item(u"a"_s), item(u"b"_s)}},
                                   {u"navigation"_s, u"Aller à"_s, {item(u"a"_s)}}});
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0].sectionTitle, u"Actions"_s);
    EXPECT_EQ(rows[1].sectionTitle, QString());
    EXPECT_EQ(rows[2].sectionTitle, u"Aller à"_s);
    EXPECT_NE(rows[0].key, rows[2].key);
}
