#include "state/palette/PaletteActions.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Action = OptionAction;

QStringList ids(const QList<OptionItem> &items)
{
    QStringList list;
    for (const auto &item : items)
        list += item.id;
    return list;
}

OptionItem withId(const QList<OptionItem> &items, const QString &id)
{
    for (const auto &item : items) {
        if (item.id == id)
            return item;
    }
    ADD_FAILURE() << "no action " << id.toStdString();
    return {};
}

QStringList without(QStringList list, const QStringList &left)
{
    list.removeIf([&](const QString &id) { return left.contains(id); });
    return list;
}

const QStringList all{u"new"_s,      u"status"_s,   u"priority"_s,    u"assignee"_s,   u"me"_s,
                      u"labels"_s,   u"copy-key"_s, u"copy-branch"_s, u"copy-link"_s,  u"browser"_s,
                      u"window"_s,   u"layout"_s,   u"completed"_s,   u"appearance"_s, u"reload"_s,
                      u"settings"_s, u"updates"_s};
const QStringList forIssues{u"status"_s, u"priority"_s, u"assignee"_s,
                            u"me"_s,     u"labels"_s,   u"copy-key"_s};
const QStringList forOneIssue{u"copy-branch"_s, u"copy-link"_s, u"browser"_s, u"window"_s};

} // namespace

TEST(PaletteActions, WithOneTargetAllStandInTheirOrder)
{
    EXPECT_EQ(ids(paletteActions({.targets = {u"MOB-1"_s}})), all);
}

TEST(PaletteActions, WithNothingSelectedAndNoFocusTheRowsForIssuesAreNotOffered)
{
    EXPECT_EQ(ids(paletteActions({})), without(all, forIssues + forOneIssue));
}

TEST(PaletteActions, WithTwoOrMoreTargetsBranchLinkBrowserAndWindowAreNotOffered)
{
    const auto expected = without(all, forOneIssue);
    EXPECT_EQ(ids(paletteActions({.targets = {u"MOB-1"_s, u"MOB-2"_s}})), expected);
    EXPECT_EQ(ids(paletteActions({.targets = {u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s}})), expected);
}

TEST(PaletteActions, TitlesAndSymbolsAreThoseOfTheProgram)
{
    const QList<std::pair<QString, QString>> expected{
        {u"Nouveau ticket"_s, u"square.and.pencil"_s},
        {u"Changer le statut…"_s, u"circle.dashed"_s},
        {u"Changer la priorité…"_s, u"chart.bar.fill"_s},
        {u"Assigner…"_s, u"person.crop.circle"_s},
        {u"M'assigner"_s, u"person.fill.checkmark"_s},
        {u"Étiquettes…"_s, u"tag"_s},
        {u"Copier la clé"_s, u"number"_s},
        {u"Copier le nom de branche git"_s, u"arrow.triangle.branch"_s},
        {u"Copier le lien"_s, u"link"_s},
        {u"Ouvrir dans Jira"_s, u"safari"_s},
        {u"Ouvrir dans une nouvelle fenêtre"_s, u"macwindow.on.rectangle"_s},
        {u"Afficher en tableau"_s, u"rectangle.split.3x1"_s},
        {u"Masquer les tickets terminés"_s, u"checkmark.circle"_s},
        {u"Changer l'apparence (Système)"_s, u"circle.lefthalf.filled"_s},
        {u"Actualiser"_s, u"arrow.clockwise"_s},
        {u"Réglages"_s, u"gear"_s},
        {u"Rechercher les mises à jour…"_s, u"arrow.triangle.2.circlepath"_s}};
    QList<std::pair<QString, QString>> actual;
    for (const auto &item : paletteActions({.targets = {u"MOB-1"_s}})) {
        const auto *symbol = std::get_if<OptionIcon::Symbol>(&item.icon.value);
        actual.append({item.title, symbol ? symbol->name : QString()});
        EXPECT_FALSE(item.subtitle) << item.id.toStdString();
        EXPECT_FALSE(item.isSelected) << item.id.toStdString();
    }
    EXPECT_EQ(actual, expected);
}

TEST(PaletteActions, OnlyThePickersKeepThePaletteOpen)
{
    const QStringList pickers{u"status"_s, u"priority"_s, u"assignee"_s, u"labels"_s};
    for (const auto &item : paletteActions({.targets = {u"MOB-1"_s}}))
        EXPECT_EQ(item.keepsOpen, pickers.contains(item.id)) << item.id.toStdString();
}

TEST(PaletteActions, PickersAndBulkActionsApplyToAllTargets)
{
    const QStringList targets{u"MOB-1"_s, u"MOB-2"_s};
    const auto actions = paletteActions({.targets = targets});
    const QList<std::pair<QString, Command>> expected{
        {u"status"_s, Command::PickStatus},     {u"priority"_s, Command::PickPriority},
        {u"assignee"_s, Command::PickAssignee}, {u"labels"_s, Command::PickLabels},
        {u"me"_s, Command::AssignToMe},         {u"copy-key"_s, Command::CopyKeys}};
    for (const auto &[id, command] : expected)
        EXPECT_EQ(withId(actions, id).run, (OptionAction{Action::RunCommand{command, targets}}))
            << id.toStdString();
}

TEST(PaletteActions, TheLayoutIsTheOtherOneWithItsDigit)
{
    const auto inList = withId(paletteActions({.layout = LayoutMode::List}), u"layout"_s);
    EXPECT_EQ(inList.shortcut, u"2"_s);
    EXPECT_EQ(inList.run, (OptionAction{Action::RunCommand{Command::ShowBoard, {}}}));

    const auto onBoard = withId(paletteActions({.layout = LayoutMode::Board}), u"layout"_s);
    EXPECT_EQ(onBoard.title, u"Afficher en liste"_s);
    EXPECT_EQ(onBoard.shortcut, u"1"_s);
    EXPECT_EQ(onBoard.icon, (OptionIcon{OptionIcon::Symbol{u"list.bullet"_s}}));
    EXPECT_EQ(onBoard.run, (OptionAction{Action::RunCommand{Command::ShowList, {}}}));
}

TEST(PaletteActions, TitlesSayWhatIsNow)
{
    EXPECT_EQ(withId(paletteActions({.showCompleted = false}), u"completed"_s).title,
              u"Afficher les tickets terminés"_s);
    EXPECT_EQ(withId(paletteActions({.appearance = AppearanceMode::Light}), u"appearance"_s).title,
              u"Changer l'apparence (Clair)"_s);
    EXPECT_EQ(withId(paletteActions({.appearance = AppearanceMode::Dark}), u"appearance"_s).title,
              u"Changer l'apparence (Sombre)"_s);
}
