#include "commands/ShortcutKey.h"

#include "commands/CommandTable.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto control = Qt::ControlModifier;
constexpr auto controlShift = Qt::ControlModifier | Qt::ShiftModifier;
constexpr auto controlAlt = Qt::ControlModifier | Qt::AltModifier;

std::optional<Command> command(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const QString text = key == Qt::Key_K ? u"\u000b"_s : QString();
    return shortcutCommand(KeyPress::make(key, 0, text, modifiers));
}

} // namespace

TEST(ShortcutKey, LettersTakeExactlyTheirModifiers)
{
    EXPECT_EQ(command(Qt::Key_K, control), Command::TogglePalette);
    EXPECT_EQ(command(Qt::Key_K, controlShift), std::nullopt);
    EXPECT_EQ(command(Qt::Key_K, controlAlt), std::nullopt);
    EXPECT_EQ(command(Qt::Key_K, Qt::NoModifier), std::nullopt);
    EXPECT_EQ(command(Qt::Key_R, control), Command::Reload);
    EXPECT_EQ(command(Qt::Key_N, control), Command::NewIssue);
    EXPECT_EQ(command(Qt::Key_O, controlShift), Command::OpenInBrowser);
    EXPECT_EQ(command(Qt::Key_O, control), std::nullopt);
    EXPECT_EQ(command(Qt::Key_I, controlAlt), Command::ToggleInspector);
}

TEST(ShortcutKey, TheTableHasNoTwoRowsForOnePress)
{
    const auto rows = shortcutKeys();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (std::size_t j = i + 1; j < rows.size(); ++j) {
            EXPECT_FALSE(rows[i].character == rows[j].character && rows[i].flags == rows[j].flags &&
                         rows[i].shift == rows[j].shift);
        }
    }
}

TEST(ShortcutKey, NoCommandHasTwoShortcutsAndThoseOfTheMenuThatActOnAFieldHaveNone)
{
    QSet<int> commands;
    for (const ShortcutKey &key : shortcutKeys())
        commands.insert(int(key.command));
    EXPECT_EQ(commands.size(), qsizetype(shortcutKeys().size()));
    for (const auto group : {CommandGroup::General, CommandGroup::Editing, CommandGroup::Sharing,
                             CommandGroup::Display}) {
        for (const auto command : commandsIn(group))
            EXPECT_EQ(commands.contains(int(command)), group != CommandGroup::Editing);
    }
}

TEST(ShortcutKey, CapsLockChangesNothing)
{
    EXPECT_EQ(shortcutCommand(KeyPress::make(Qt::Key_O, 32, u"\u000f"_s, controlShift, u"O"_s)),
              Command::OpenInBrowser);
}

TEST(ShortcutKey, TheKeypadsFullStopCopiesTheKey)
{
    EXPECT_EQ(
        shortcutCommand(KeyPress::make(Qt::Key_Period, 91, u"."_s, control | Qt::KeypadModifier)),
        Command::CopyKeys);
}

TEST(ShortcutKey, AKeyThatTypesNothingIsNone)
{
    EXPECT_EQ(shortcutCommand(KeyPress::make(Qt::Key_F5, 71, {}, control)), std::nullopt);
    EXPECT_EQ(shortcutCommand(KeyPress::make(Qt::Key_Dead_Circumflex, 34, {}, control)),
              std::nullopt);
}
