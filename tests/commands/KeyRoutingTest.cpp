#include "commands/KeyRouting.h"

#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;

namespace {

KeyPress named(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return KeyPress::make(key, 0, {}, modifiers);
}

KeyPress typed(const QString &text, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return KeyPress::make(Qt::Key(text.toUpper().front().unicode()), 0, text, modifiers);
}

constexpr std::array commandFlags{Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier};

const std::set<Command> commandsOfKeys{
    Command::OpenIssue,     Command::OpenWindow,   Command::Peek,       Command::Escape,
    Command::MoveDown,      Command::MoveUp,       Command::NewIssue,   Command::PickStatus,
    Command::PickPriority,  Command::PickAssignee, Command::PickLabels, Command::AssignToMe,
    Command::ToggleCheck,   Command::ShowList,     Command::ShowBoard,  Command::MovePageDown,
    Command::MovePageUp,    Command::MoveToFirst,  Command::MoveToLast, Command::CheckVisible,
    Command::OpenShortcuts,
};

} // namespace

TEST(KeyRouting, LettersWorkWithCapsLock)
{
    EXPECT_EQ(route(typed(u"J"_s)), Command::MoveDown);
    EXPECT_EQ(route(typed(u"K"_s)), Command::MoveUp);
    EXPECT_EQ(route(typed(u"C"_s)), Command::NewIssue);
}

TEST(KeyRouting, EveryRowIsReached)
{
    std::set<Command> reached;
    for (const KeyBinding &binding : keyBindings()) {
        const Qt::KeyboardModifiers flags =
            binding.flags == KeyBinding::Flags::ControlOnly ? Qt::ControlModifier : Qt::NoModifier;
        const KeyPress press = binding.character ? typed(QString(QChar(binding.character)), flags)
                                                 : named(binding.key, flags);
        EXPECT_EQ(route(press), binding.command);
        reached.insert(binding.command);
    }
    EXPECT_EQ(reached, commandsOfKeys);
}

TEST(KeyRouting, NoKeyButReturnAndEscapeMeansTheSameWithAFlag)
{
    for (const KeyBinding &binding : keyBindings()) {
        if (binding.flags != KeyBinding::Flags::None || binding.key == Qt::Key_Return ||
            binding.key == Qt::Key_Enter)
            continue;
        for (const Qt::KeyboardModifier flag : commandFlags) {
            const KeyPress press = binding.character
                                       ? typed(QString(QChar(binding.character)), flag)
                                       : named(binding.key, flag);
            EXPECT_NE(route(press), binding.command);
        }
    }
    EXPECT_EQ(route(typed(u"s"_s, Qt::ControlModifier)), std::nullopt);
    EXPECT_EQ(route(typed(u"a"_s, Qt::AltModifier)), std::nullopt);
}

TEST(KeyRouting, ReturnOpensTheWindowWithControlOnly)
{
    EXPECT_EQ(route(named(Qt::Key_Return, Qt::ControlModifier)), Command::OpenWindow);
    EXPECT_EQ(route(named(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier)),
              Command::OpenWindow);
    EXPECT_EQ(route(named(Qt::Key_Return, Qt::ControlModifier | Qt::AltModifier)), std::nullopt);
    EXPECT_EQ(route(named(Qt::Key_Return, Qt::MetaModifier)), std::nullopt);
}

TEST(KeyRouting, KeypadEnterIsReturn)
{
    EXPECT_EQ(route(named(Qt::Key_Enter, Qt::KeypadModifier)), Command::OpenIssue);
}

TEST(KeyRouting, EscapeWorksWithAnyFlags)
{
    for (const Qt::KeyboardModifier flag : commandFlags)
        EXPECT_EQ(route(named(Qt::Key_Escape, flag)), Command::Escape);
}

TEST(KeyRouting, ShiftedArrowsStillMove)
{
    EXPECT_EQ(route(named(Qt::Key_Down, Qt::ShiftModifier)), Command::MoveDown);
    EXPECT_EQ(route(named(Qt::Key_Up, Qt::ShiftModifier)), Command::MoveUp);
}

TEST(KeyRouting, ADigitWithShiftIsLeftAlone)
{
    EXPECT_EQ(route(typed(u"1"_s, Qt::ShiftModifier)), std::nullopt);
    EXPECT_EQ(route(typed(u"2"_s, Qt::ShiftModifier)), std::nullopt);
}

TEST(KeyRouting, KeypadDigitsSwitchTheLayout)
{
    EXPECT_EQ(route(typed(u"1"_s, Qt::KeypadModifier)), Command::ShowList);
    EXPECT_EQ(route(typed(u"2"_s, Qt::KeypadModifier)), Command::ShowBoard);
}

TEST(KeyRouting, OtherKeysAreLeftAlone)
{
    for (const QChar letter : u"bdefghmnoqrtuvwyz034567890é;."_s)
        EXPECT_EQ(route(typed(QString(letter))), std::nullopt) << int(letter.unicode());
    EXPECT_EQ(route(named(Qt::Key_Tab)), std::nullopt);
    EXPECT_EQ(route(named(Qt::Key_F5)), std::nullopt);
}

TEST(KeyPress, ControlHidesNoLetter)
{
    EXPECT_TRUE(KeyPress::make(Qt::Key_K, 45, u"\u000b"_s, Qt::ControlModifier).isLetter(u'k'));
}

TEST(KeyPress, ASignOfAltGrOnTheDigitRowIsNoDigit)
{
    const KeyPress alone = KeyPress::make(Qt::Key_Ampersand, 10, u"&"_s, Qt::NoModifier, u"&"_s);
    const KeyPress withAltGr =
        KeyPress::make(Qt::Key_AsciiCircum, 10, u"^"_s, Qt::GroupSwitchModifier, u"&"_s);
    EXPECT_EQ(alone.digit(), 1);
    EXPECT_EQ(withAltGr.digit(), std::nullopt);
}

TEST(KeyPress, CapsLockKeepsTheDigitsOfAnAccentedRow)
{
    EXPECT_EQ(KeyPress::make(Qt::Key_Eacute, 11, u"É"_s, Qt::NoModifier, u"é"_s).digit(), 2);
}

TEST(KeyPress, DigitsOfOtherScriptsGoByTheirPlace)
{
    EXPECT_EQ(KeyPress::make(Qt::Key_unknown, 12, u"٣"_s, Qt::NoModifier).digit(), 3);
}

TEST(KeyPress, ALatinLayoutNeverGoesByTheLettersPlace)
{
    // The key that types "j" on QWERTY types "s" on BÉPO and "h" on Dvorak.
    EXPECT_FALSE(KeyPress::make(Qt::Key_S, 44, u"s"_s, Qt::NoModifier).isLetter(u'j'));
    EXPECT_TRUE(KeyPress::make(Qt::Key(0x41e), 44, u"о"_s, Qt::NoModifier).isLetter(u'j'));
}
