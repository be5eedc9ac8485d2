#include "state/palette/PaletteKeys.h"

#include "commands/KeyboardLayout.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Kind = PaletteKey::Kind;

namespace {

std::optional<PaletteKey> taken(Qt::Key key, Qt::KeyboardModifiers modifiers = {},
                                const QString &text = {})
{
    return paletteKey(KeyPress::make(key, 0, text, modifiers), PaletteDigits::PickRows);
}

PaletteKey digit(int number)
{
    return {Kind::Digit, number};
}

} // namespace

TEST(PaletteKeys, ReturnAndKeypadEnterRun)
{
    EXPECT_EQ(taken(Qt::Key_Return), PaletteKey{Kind::Run});
    EXPECT_EQ(taken(Qt::Key_Enter, Qt::KeypadModifier), PaletteKey{Kind::Run});
    EXPECT_EQ(taken(Qt::Key_Return, Qt::ShiftModifier), PaletteKey{Kind::Run});
}

TEST(PaletteKeys, OnlyControlAloneRunsInAWindow)
{
    EXPECT_EQ(taken(Qt::Key_Return, Qt::ControlModifier), PaletteKey{Kind::RunInWindow});
    EXPECT_EQ(taken(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier),
              PaletteKey{Kind::RunInWindow});
    for (const auto other : {Qt::ShiftModifier, Qt::AltModifier, Qt::MetaModifier})
        EXPECT_EQ(taken(Qt::Key_Return, Qt::ControlModifier | other), PaletteKey{Kind::Run});
}

TEST(PaletteKeys, EscapeAndTheArrowsAreTaken)
{
    EXPECT_EQ(taken(Qt::Key_Escape), PaletteKey{Kind::Back});
    EXPECT_EQ(taken(Qt::Key_Down), PaletteKey{Kind::Down});
    EXPECT_EQ(taken(Qt::Key_Up), PaletteKey{Kind::Up});
}

TEST(PaletteKeys, DigitsFromOneToNineWithNothingHeld)
{
    EXPECT_EQ(taken(Qt::Key_7, {}, u"7"_s), digit(7));
    EXPECT_EQ(taken(Qt::Key_3, Qt::KeypadModifier, u"3"_s), digit(3));
    EXPECT_EQ(taken(Qt::Key_0, {}, u"0"_s), std::nullopt);
    for (const auto held :
         {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        EXPECT_EQ(taken(Qt::Key_7, held, u"7"_s), std::nullopt);
}

TEST(PaletteKeys, ADigitIsTypedWhereDigitsPickNoRow)
{
    EXPECT_EQ(paletteKey(KeyPress::make(Qt::Key_7, 0, u"7"_s, {}), PaletteDigits::AreTyped),
              std::nullopt);
}

TEST(PaletteKeys, EverythingElseIsTyped)
{
    EXPECT_EQ(taken(Qt::Key_A, {}, u"a"_s), std::nullopt);
    EXPECT_EQ(taken(Qt::Key_Tab), std::nullopt);
    EXPECT_EQ(taken(Qt::Key_Backspace), std::nullopt);
}

class PaletteKeysUnderLayout : public testing::TestWithParam<const char *>
{
};

TEST_P(PaletteKeysUnderLayout, TheTopRowPicksWithoutShiftAndTypesWithIt)
{
    constexpr quint32 oneKey = 10;
    const auto layout = KeyboardLayout::load(QString::fromLatin1(GetParam()));
    for (int number = 1; number <= 9; ++number) {
        const quint32 code = oneKey + quint32(number) - 1;
        EXPECT_EQ(paletteKey(layout.press(code), PaletteDigits::PickRows), digit(number));
        EXPECT_EQ(paletteKey(layout.press(code, Qt::ShiftModifier), PaletteDigits::PickRows),
                  std::nullopt);
        EXPECT_EQ(paletteKey(layout.press(code), PaletteDigits::AreTyped), std::nullopt);
    }
}

TEST_P(PaletteKeysUnderLayout, NoLetterPicksARow)
{
    constexpr quint32 firstLetterKey = 24;
    constexpr quint32 lastLetterKey = 58;
    const auto layout = KeyboardLayout::load(QString::fromLatin1(GetParam()));
    for (const quint32 code : layout.scanCodes()) {
        if (code >= firstLetterKey && code <= lastLetterKey)
            EXPECT_EQ(paletteKey(layout.press(code), PaletteDigits::PickRows)
                              .value_or(PaletteKey{Kind::Run})
                              .kind == Kind::Digit,
                      false)
                << code;
    }
}

INSTANTIATE_TEST_SUITE_P(Layouts, PaletteKeysUnderLayout,
                         testing::Values("us", "us-dvorak", "de", "ch-de", "ch-fr", "ca", "fr",
                                         "fr-oss", "be", "fr-afnor", "fr-bepo", "ru", "gr"));
