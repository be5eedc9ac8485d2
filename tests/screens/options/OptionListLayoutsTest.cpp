#include "commands/KeyboardLayout.h"
#include "screens/options/ListedOptions.h"
#include "screens/options/OptionList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The scan code of the key that types 1 on most layouts; those of 2 to 9 follow.
constexpr quint32 oneKey = 10;

bool isDigit(const QString &text)
{
    return text.size() == 1 && text.front() >= u'1' && text.front() <= u'9';
}

} // namespace

class OptionListUnderLayout : public testing::TestWithParam<const char *>
{
protected:
    OptionListUnderLayout()
    {
        QList<OptionItem> items;
        for (int i = 1; i <= 9; ++i) {
            const QString digit = QString::number(i);
            items.append({.id = digit, .title = digit, .shortcut = digit});
        }
        source.set(items);
        list.setSource(&source);
    }

    const KeyboardLayout layout = KeyboardLayout::load(QString::fromLatin1(GetParam()));
    ListedOptions source;
    OptionList list;
};

TEST_P(OptionListUnderLayout, EachKeyOfTheTopRowPicksTheRowOfItsPlace)
{
    QStringList expected;
    for (int digit = 1; digit <= 9; ++digit) {
        EXPECT_TRUE(list.handle(layout.press(oneKey + quint32(digit) - 1))) << digit;
        expected += QString::number(digit);
    }
    EXPECT_EQ(source.ran, expected);
}

TEST_P(OptionListUnderLayout, WithShiftOnlyAKeyThatTypesADigitPicksARow)
{
    int typed = 0;
    for (const quint32 code : layout.scanCodes()) {
        const KeyPress press = layout.press(code, Qt::ShiftModifier);
        if (press.characters.isEmpty())
            continue;
        source.ran.clear();
        EXPECT_EQ(list.handle(press), isDigit(press.characters)) << code;
        EXPECT_EQ(source.ran,
                  isDigit(press.characters) ? QStringList{press.characters} : QStringList())
            << code;
        typed += isDigit(press.characters) ? 1 : 0;
    }
    EXPECT_TRUE(typed == 0 || typed >= 9) << "a layout has all its digits with Shift, or none";
}

TEST_P(OptionListUnderLayout, WithAQueryTheKeysOfTheTopRowAreTyped)
{
    list.setQuery(u"1"_s);
    for (quint32 code = oneKey; code < oneKey + 9; ++code)
        EXPECT_FALSE(list.handle(layout.press(code))) << code;
    EXPECT_EQ(source.ran, QStringList());
}

INSTANTIATE_TEST_SUITE_P(Layouts, OptionListUnderLayout,
                         testing::Values("be", "ca", "ch-de", "ch-fr", "de", "fr-afnor", "fr-bepo",
                                         "fr-oss", "fr", "gr", "ru", "us-dvorak", "us"),
                         [](const auto &parameter) {
                             std::string name = parameter.param;
                             std::erase(name, '-');
                             return name;
                         });
