#include "commands/ShortcutHints.h"

#include "commands/KeyRouting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ShortcutHints, TheyTellTheKeysOfTheKeyMapAndOfTheShortcuts)
{
    EXPECT_EQ(searchHint(), u"Rechercher (⌘K)"_s);
    EXPECT_EQ(newIssueHint(), u"Nouveau ticket (C)"_s);
    EXPECT_EQ(reloadHint(), u"Actualiser (⌘R)"_s);
    EXPECT_EQ(layoutHint(), u"Liste (1) · Tableau (2)"_s);
    EXPECT_EQ(selectHint(), u"Sélectionner (X)"_s);
    EXPECT_EQ(commandHint(Command::CopyBranch), u"Copier le nom de branche git (⌘⇧.)"_s);
    EXPECT_EQ(commandHint(Command::OpenInBrowser), u"Ouvrir dans Jira (⌘⇧O)"_s);
    EXPECT_EQ(openWindowHint(), u"Ouvrir dans une nouvelle fenêtre (⌘↩)"_s);
    EXPECT_EQ(deselectHint(), u"Désélectionner (Échap)"_s);
}

TEST(ShortcutHints, ACommandWithoutAShortcutIsItsWordsAlone)
{
    EXPECT_EQ(withShortcut(u"Statut"_s, Command::PickStatus), u"Statut"_s);
}

TEST(ShortcutHints, EveryKeyOfTheKeyMapHasAName)
{
    for (const KeyBinding &binding : keyBindings()) {
        for (const QString &text : keyTexts(binding.command))
            EXPECT_FALSE(text.isEmpty() || text == u"⌘"_s) << int(binding.command);
    }
}

TEST(ShortcutHints, KeysThatDoTheSameAreToldOnceEach)
{
    EXPECT_EQ(keyTexts(Command::MoveDown), (QStringList{u"↓"_s, u"J"_s}));
    EXPECT_EQ(keyTexts(Command::OpenIssue), QStringList{u"↩"_s});
    EXPECT_EQ(keyTexts(Command::OpenWindow), QStringList{u"⌘↩"_s});
}
