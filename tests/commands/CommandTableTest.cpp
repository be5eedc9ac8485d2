#include "commands/CommandTable.h"

#include "commands/ShortcutReference.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Item
{
    QString title;
    QString shortcut;
    bool operator==(const Item &) const = default;
};

QList<Item> menu(InspectorState inspector = InspectorState::Closed)
{
    QList<Item> items;
    for (const auto group : {CommandGroup::General, CommandGroup::Editing, CommandGroup::Sharing,
                             CommandGroup::Display}) {
        for (const auto command : commandsIn(group))
            items.append({commandTitle(command, inspector), commandShortcut(command)});
        items.append({u"-"_s, QString()});
    }
    return items;
}

} // namespace

TEST(CommandTable, TheMenuOfIssuesHasItsItemsInFourGroups)
{
    const QList<Item> expected{{u"Palette de commandes…"_s, u"⌘K"_s},
                               {u"Actualiser"_s, u"⌘R"_s},
                               {u"-"_s, {}},
                               {u"Changer le statut…"_s, {}},
                               {u"Changer la priorité…"_s, {}},
                               {u"Assigner à…"_s, {}},
                               {u"M'assigner"_s, {}},
                               {u"Étiquettes…"_s, {}},
                               {u"-"_s, {}},
                               {u"Copier la clé"_s, u"⌘."_s},
                               {u"Copier le nom de branche git"_s, u"⌘⇧."_s},
                               {u"Copier le lien"_s, u"⌘⇧,"_s},
                               {u"Ouvrir dans Jira"_s, u"⌘⇧O"_s},
                               {u"-"_s, {}},
                               {u"Afficher en liste"_s, u"⌘⌥1"_s},
                               {u"Afficher en tableau"_s, u"⌘⌥2"_s},
                               {u"Afficher l'aperçu"_s, u"⌘⌥I"_s},
                               {u"-"_s, {}}};
    EXPECT_EQ(menu(), expected);
}

TEST(CommandTable, TheItemOfThePreviewFollowsTheInspector)
{
    EXPECT_EQ(commandTitle(Command::ToggleInspector, InspectorState::Open), u"Masquer l'aperçu"_s);
}

TEST(CommandTable, NewIssueStandsInAMenuOfItsOwn)
{
    EXPECT_EQ(commandTitle(Command::NewIssue, InspectorState::Closed), u"Nouveau ticket"_s);
    EXPECT_EQ(commandShortcut(Command::NewIssue), u"⌘N"_s);
}

TEST(CommandTable, EachPickerHasACommandOfItsOwn)
{
    for (const auto kind :
         {PickerKind::Status, PickerKind::Priority, PickerKind::Assignee, PickerKind::Labels})
        EXPECT_EQ(pickerOf(pickCommand(kind)), kind);
    EXPECT_EQ(pickCommand(PickerKind::Labels), Command::PickLabels);
    EXPECT_EQ(pickerOf(Command::AssignToMe), std::nullopt);
}

TEST(ShortcutReference, ItsTextsAreThoseOfTheProgram)
{
    const QList<ShortcutGroup> expected{{u"Général"_s,
                                         {{u"⌘K"_s, u"Palette de commandes"_s},
                                          {u"C"_s, u"Nouveau ticket"_s},
                                          {u"⌘R"_s, u"Actualiser"_s},
                                          {u"1 / 2"_s, u"Vue liste / tableau"_s}}},
                                        {u"Navigation"_s,
                                         {{u"J / K  ou  ↓ / ↑"_s, u"Ticket suivant / précédent"_s},
                                          {u"↩"_s, u"Ouvrir le ticket"_s},
                                          {u"Espace"_s, u"Afficher / masquer l'aperçu"_s},
                                          {u"⌘↩"_s, u"Ouvrir dans une nouvelle fenêtre"_s},
                                          {u"Échap"_s, u"Fermer / désélectionner"_s}}},
                                        {u"Ticket"_s,
                                         {{u"S"_s, u"Changer le statut"_s},
                                          {u"P"_s, u"Changer la priorité"_s},
                                          {u"A"_s, u"Assigner"_s},
                                          {u"I"_s, u"M'assigner"_s},
                                          {u"L"_s, u"Étiquettes"_s},
                                          {u"X  ·  ⌘clic  ·  ⇧clic"_s, u"Sélection multiple"_s},
                                          {u"⌘."_s, u"Copier la clé"_s},
                                          {u"⌘⇧."_s, u"Copier le nom de branche git"_s},
                                          {u"⌘⇧,"_s, u"Copier le lien"_s},
                                          {u"⌘⇧O"_s, u"Ouvrir dans Jira"_s},
                                          {u"⌘↩ (commentaire)"_s, u"Envoyer le commentaire"_s}}}};
    EXPECT_EQ(shortcutReference(), expected);
}
