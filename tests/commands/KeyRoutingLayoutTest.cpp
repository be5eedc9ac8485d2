// Tests the complete key map with real keyboard layouts, using the scan codes and symbols of the window system.
#include "commands/KeyRouting.h"
#include "commands/KeyboardLayout.h"
#include "commands/ShortcutKey.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Own = KeyboardLayout::OwnCharacters;
constexpr quint32 oneKey = 10;
constexpr quint32 firstKeypadKey = 79;

struct Layout
{
    const char *name;
    /// The scan codes of the keys for the letters of the key map, in the order "jkcspalix".
    std::array<quint32, 9> letters;
    /// All key presses of the copy shortcuts, given as scan codes. A negative scan code means the key with Shift.
    std::set<int> copyKey;
    std::set<int> copyBranch;
    std::set<int> copyLink;
};

std::ostream &operator<<(std::ostream &out, const Layout &layout)
{
    return out << layout.name;
}

const std::array layouts{
    Layout{"us", {44, 45, 54, 39, 33, 38, 46, 31, 53}, {60}, {-60}, {-59}},
    Layout{"us-dvorak", {54, 55, 31, 47, 27, 38, 33, 42, 56}, {26}, {-26}, {-25}},
    Layout{"de", {44, 45, 54, 39, 33, 38, 46, 31, 53}, {60}, {-60}, {-59}},
    Layout{"ch-de", {44, 45, 54, 39, 33, 38, 46, 31, 53}, {60}, {-60}, {-59}},
    Layout{"ch-fr", {44, 45, 54, 39, 33, 38, 46, 31, 53}, {60}, {-60}, {-59}},
    Layout{"ca", {44, 45, 54, 39, 33, 38, 46, 31, 53}, {60}, {-60}, {-59}},
    // The full stop needs Shift here. Both the key that types it with Shift and the key at its QWERTY position work.
    Layout{"fr", {44, 45, 54, 39, 33, 24, 46, 31, 53}, {-59, 60}, {-60}, {-58}},
    Layout{"fr-oss", {44, 45, 54, 39, 33, 24, 46, 31, 53}, {-59, 60}, {-60}, {-58}},
    Layout{"be", {44, 45, 54, 39, 33, 24, 46, 31, 53}, {-59, 60}, {-60}, {-58}},
    Layout{"fr-afnor", {44, 45, 54, 39, 33, 24, 46, 31, 53}, {58, 60}, {-58, -60}, {-59}},
    Layout{"fr-bepo", {33, 56, 43, 45, 26, 38, 32, 40, 54}, {55}, {-55}, {-42}},
    // The layout has another script. The keys at the QWERTY positions of the letters are used.
    Layout{"ru", {44, 45, 54, 39, 33, 38, 46, 31, 53}, {60, 61}, {-60, -61}, {-59}},
    Layout{"gr", {44, 45, 54, 39, 33, 38, 46, 31, 53}, {60}, {-60}, {-59}},
};

constexpr std::array letterCommands{
    Command::MoveDown,   Command::MoveUp,       Command::NewIssue,
    Command::PickStatus, Command::PickPriority, Command::PickAssignee,
    Command::PickLabels, Command::AssignToMe,   Command::ToggleCheck,
};

class KeyMapUnderLayout : public testing::TestWithParam<Layout>
{
protected:
    /// All presses with the modifiers that result in the command. A negative scan code means the key with Shift.
    std::set<int> pressesOf(Command command, Qt::KeyboardModifiers modifiers,
                            Own own = Own::Known) const
    {
        std::set<int> presses;
        for (const quint32 code : layout.scanCodes()) {
            // The keypad types its own characters in every layout.
            if (code >= firstKeypadKey)
                continue;
            if (shortcutCommand(layout.press(code, modifiers, own)) == command)
                presses.insert(int(code));
            if (shortcutCommand(layout.press(code, modifiers | Qt::ShiftModifier, own)) == command)
                presses.insert(-int(code));
        }
        return presses;
    }
    std::set<quint32> keysOf(Command command,
                             Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        std::set<quint32> keys;
        for (const quint32 code : layout.scanCodes()) {
            if (route(layout.press(code, modifiers)) == command)
                keys.insert(code);
        }
        return keys;
    }

    const KeyboardLayout layout = KeyboardLayout::load(QString::fromLatin1(GetParam().name));
};

using KeySet = std::set<quint32>;

} // namespace

TEST_P(KeyMapUnderLayout, EveryLetterWorksWithoutShift)
{
    for (std::size_t i = 0; i < letterCommands.size(); ++i)
        EXPECT_EQ(route(layout.press(GetParam().letters[i])), letterCommands[i]) << i;
}

TEST_P(KeyMapUnderLayout, EveryLetterWorksWithShiftAsWell)
{
    for (std::size_t i = 0; i < letterCommands.size(); ++i)
        EXPECT_EQ(route(layout.press(GetParam().letters[i], Qt::ShiftModifier)), letterCommands[i])
            << i;
}

TEST_P(KeyMapUnderLayout, LettersAreOnNoOtherKeys)
{
    for (std::size_t i = 2; i < letterCommands.size(); ++i)
        EXPECT_EQ(keysOf(letterCommands[i]), KeySet{GetParam().letters[i]}) << i;
    EXPECT_EQ(keysOf(Command::MoveDown), (KeySet{GetParam().letters[0], 88, 116}));
    EXPECT_EQ(keysOf(Command::MoveUp), (KeySet{GetParam().letters[1], 80, 111}));
}

TEST_P(KeyMapUnderLayout, EveryDigitOfTheTopRowWorksWithoutShift)
{
    for (int digit = 1; digit <= 9; ++digit)
        EXPECT_EQ(layout.press(oneKey + quint32(digit) - 1).digit(), digit);
    EXPECT_EQ(layout.press(oneKey + 9).digit(), std::nullopt);
}

TEST_P(KeyMapUnderLayout, ListAndBoardAreOnTheFirstDigitsWithoutShiftOnly)
{
    EXPECT_EQ(keysOf(Command::ShowList), KeySet{oneKey});
    EXPECT_EQ(keysOf(Command::ShowBoard), KeySet{oneKey + 1});
    EXPECT_EQ(keysOf(Command::ShowList, Qt::ShiftModifier), KeySet{});
    EXPECT_EQ(keysOf(Command::ShowBoard, Qt::ShiftModifier), KeySet{});
}

TEST_P(KeyMapUnderLayout, NamedKeysWork)
{
    EXPECT_EQ(keysOf(Command::OpenIssue), (KeySet{36, 104}));
    EXPECT_EQ(keysOf(Command::OpenWindow, Qt::ControlModifier), (KeySet{36, 104}));
    EXPECT_EQ(keysOf(Command::Escape), KeySet{9});
    EXPECT_EQ(keysOf(Command::Peek), KeySet{65});
    EXPECT_EQ(keysOf(Command::Peek, Qt::ShiftModifier), KeySet{65});
}

TEST_P(KeyMapUnderLayout, CopyingTheKeyAndTheBranchAreTwoCommands)
{
    EXPECT_EQ(pressesOf(Command::CopyKeys, Qt::ControlModifier), GetParam().copyKey);
    EXPECT_EQ(pressesOf(Command::CopyBranch, Qt::ControlModifier), GetParam().copyBranch);
    EXPECT_EQ(pressesOf(Command::CopyLink, Qt::ControlModifier), GetParam().copyLink);
}

TEST_P(KeyMapUnderLayout, CopyingTheKeyNeedsNoShift)
{
    const auto presses = pressesOf(Command::CopyKeys, Qt::ControlModifier);
    EXPECT_TRUE(std::ranges::any_of(presses, [](int press) { return press > 0; }));
}

TEST_P(KeyMapUnderLayout, EveryShortcutIsOnOneOfItsKeysAlone)
{
    for (const ShortcutKey &key : shortcutKeys())
        EXPECT_FALSE(pressesOf(key.command, key.flags).empty()) << int(key.command);
    const auto palette = pressesOf(Command::TogglePalette, Qt::ControlModifier);
    EXPECT_EQ(palette, std::set{int(GetParam().letters[1])});
    const auto peek = pressesOf(Command::ToggleInspector, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(peek, std::set{int(GetParam().letters[7])});
}

TEST_P(KeyMapUnderLayout, APrintedSignWithShiftIsOnAKeyThatWorks)
{
    const auto ownCharacters = [this](quint32 code) { return layout.press(code).ownCharacters; };
    for (const Command command : {Command::CopyBranch, Command::CopyLink}) {
        const auto key = std::ranges::find(shortcutKeys(), command, &ShortcutKey::command);
        const QString printed = printedCharacter(*key, ownCharacters);
        const quint32 code = layout.keyOf(printed.toLower());
        EXPECT_NE(code, 0) << printed.toStdString();
        EXPECT_EQ(shortcutCommand(layout.press(code, key->flags | Qt::ShiftModifier)), command)
            << printed.toStdString();
    }
}

TEST_P(KeyMapUnderLayout, TheLayoutShortcutsAreOnTheDigitsWithoutShift)
{
    const auto controlAlt = Qt::ControlModifier | Qt::AltModifier;
    EXPECT_TRUE(pressesOf(Command::ShowList, controlAlt).contains(10));
    EXPECT_TRUE(pressesOf(Command::ShowBoard, controlAlt).contains(11));
}

INSTANTIATE_TEST_SUITE_P(Layouts, KeyMapUnderLayout, testing::ValuesIn(layouts),
                         [](const auto &parameter) {
                             std::string name = parameter.param.name;
                             std::erase(name, '-');
                             return name;
                         });

TEST(PrintedCharacter, IsTheShortcutsOwnWhereTheLayoutIsNotKnownOrTypesIt)
{
    const auto unknown = [](quint32) { return QString(); };
    const auto azerty = [layout = KeyboardLayout::load(u"fr"_s)](quint32 code) {
        return layout.scanCodes().contains(code) ? layout.press(code).ownCharacters : QString();
    };
    for (const ShortcutKey &key : shortcutKeys()) {
        const QString own = QChar(key.character).toUpper();
        EXPECT_EQ(printedCharacter(key, unknown), own);
        const bool isBranch = key.command == Command::CopyBranch;
        EXPECT_EQ(printedCharacter(key, azerty), isBranch ? u":"_s : own);
    }
}

// Without a keyboard map, only the typed characters and the scan codes are known. The two copy commands must remain
// distinct on every layout that has the full stop at its QWERTY position.
class KeyMapWithoutOwnCharacters : public testing::TestWithParam<const char *>
{
};

TEST_P(KeyMapWithoutOwnCharacters, CopyingTheKeyAndTheBranchAreTwoCommands)
{
    const KeyboardLayout layout = KeyboardLayout::load(QString::fromLatin1(GetParam()));
    const auto shifted = Qt::ControlModifier | Qt::ShiftModifier;
    EXPECT_EQ(shortcutCommand(layout.press(60, Qt::ControlModifier, Own::Unknown)),
              Command::CopyKeys);
    EXPECT_EQ(shortcutCommand(layout.press(60, shifted, Own::Unknown)), Command::CopyBranch);
}

TEST_P(KeyMapWithoutOwnCharacters, EveryDigitOfTheTopRowWorksWithoutShift)
{
    const KeyboardLayout layout = KeyboardLayout::load(QString::fromLatin1(GetParam()));
    for (int digit = 1; digit <= 9; ++digit)
        EXPECT_EQ(layout.press(oneKey + quint32(digit) - 1, {}, Own::Unknown).digit(), digit);
}

INSTANTIATE_TEST_SUITE_P(Layouts, KeyMapWithoutOwnCharacters,
                         testing::Values("us", "de", "ch-fr", "fr", "fr-oss", "be", "ru"),
                         [](const auto &parameter) {
                             std::string name = parameter.param;
                             std::erase(name, '-');
                             return name;
                         });
