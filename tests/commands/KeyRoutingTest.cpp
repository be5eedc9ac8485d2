#include "commands/KeyRouting.h"

#include <gtest/gtest.h>

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

} // namespace

TEST(KeyRouting, LettersWorkWithCapsLock)
{
    EXPECT_EQ(route(typed(u"J"_s)), KeyCommand::MoveDown);
    EXPECT_EQ(route(typed(u"K"_s)), KeyCommand::MoveUp);
    EXPECT_EQ(route(typed(u"C"_s)), KeyCommand::NewIssue);
}

TEST(KeyRouting, EveryRowIsReached)
{
    QSet<int> reached;
    for (const KeyBinding &binding : keyBindings()) {
        const Qt::KeyboardModifiers flags =
            binding.flags == KeyBinding::Flags::ControlOnly ? Qt::ControlModifier : Qt::NoModifier;
        const KeyPress press = binding.character ? typed(QString(QChar(binding.character)), flags)
                                                 : named(binding.key, flags);
        EXPECT_EQ(route(press), binding.command);
        reached.insert(int(binding.command));
    }
    EXPECT_EQ(reached.size(), int(KeyCommand::ShowBoard) + 1);
}

TEST(KeyRouting, NoKeyButReturnAndEscapeTakesAnyFlag)
{
    for (const KeyBinding &binding : keyBindings()) {
        if (binding.flags != KeyBinding::Flags::None || binding.key == Qt::Key_Return ||
            binding.key == Qt::Key_Enter)
            continue;
        for (const Qt::KeyboardModifier flag : commandFlags) {
            const KeyPress press = binding.character
                                       ? typed(QString(QChar(binding.character)), flag)
                                       : named(binding.key, flag);
            EXPECT_EQ(route(press), std::nullopt);
        }
    }
}

TEST(KeyRouting, ReturnOpensTheWindowWithControlOnly)
{
    EXPECT_EQ(route(named(Qt::Key_Return, Qt::ControlModifier)), KeyCommand::OpenWindow);
    EXPECT_EQ(route(named(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier)),
              KeyCommand::OpenWindow);
    EXPECT_EQ(route(named(Qt::Key_Return, Qt::ControlModifier | Qt::AltModifier)), std::nullopt);
    EXPECT_EQ(route(named(Qt::Key_Return, Qt::MetaModifier)), std::nullopt);
}

TEST(KeyRouting, KeypadEnterIsReturn)
{
    EXPECT_EQ(route(named(Qt::Key_Enter, Qt::KeypadModifier)), KeyCommand::OpenInspector);
}

TEST(KeyRouting, EscapeWorksWithAnyFlags)
{
    for (const Qt::KeyboardModifier flag : commandFlags)
        EXPECT_EQ(route(named(Qt::Key_Escape, flag)), KeyCommand::Escape);
}

TEST(KeyRouting, ShiftedArrowsStillMove)
{
    EXPECT_EQ(route(named(Qt::Key_Down, Qt::ShiftModifier)), KeyCommand::MoveDown);
    EXPECT_EQ(route(named(Qt::Key_Up, Qt::ShiftModifier)), KeyCommand::MoveUp);
}

TEST(KeyRouting, ADigitWithShiftIsLeftAlone)
{
    EXPECT_EQ(route(typed(u"1"_s, Qt::ShiftModifier)), std::nullopt);
    EXPECT_EQ(route(typed(u"2"_s, Qt::ShiftModifier)), std::nullopt);
}

TEST(KeyRouting, KeypadDigitsSwitchTheLayout)
{
    EXPECT_EQ(route(typed(u"1"_s, Qt::KeypadModifier)), KeyCommand::ShowList);
    EXPECT_EQ(route(typed(u"2"_s, Qt::KeypadModifier)), KeyCommand::ShowBoard);
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
    // The key of "j" on QWERTY types "s" on BÉPO and "h" on Dvorak.
    EXPECT_FALSE(KeyPress::make(Qt::Key_S, 44, u"s"_s, Qt::NoModifier).isLetter(u'j'));
    EXPECT_TRUE(KeyPress::make(Qt::Key(0x41e), 44, u"о"_s, Qt::NoModifier).isLetter(u'j'));
}
