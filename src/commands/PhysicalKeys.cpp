#include "commands/PhysicalKeys.h"

#include <QStringView>

#include <array>

namespace {

constexpr quint32 firstDigitScanCode = 10;

/// Adjacent keys, from left to right.
struct KeyRow
{
    quint32 firstScanCode;
    QStringView characters;
};

constexpr std::array keyRows{
    KeyRow{firstDigitScanCode, u"1234567890"},
    KeyRow{24, u"qwertyuiop"},
    KeyRow{38, u"asdfghjkl"},
    KeyRow{52, u"zxcvbnm,."},
};

} // namespace

std::optional<QChar> characterAtPlace(quint32 scanCode)
{
    for (const KeyRow &row : keyRows) {
        if (scanCode >= row.firstScanCode &&
            scanCode < row.firstScanCode + quint32(row.characters.size()))
            return row.characters[qsizetype(scanCode - row.firstScanCode)];
    }
    return std::nullopt;
}

quint32 scanCodeAtPlace(QChar character)
{
    for (const KeyRow &row : keyRows) {
        if (const auto index = row.characters.indexOf(character); index >= 0)
            return row.firstScanCode + quint32(index);
    }
    return 0;
}

std::optional<int> digitAtPlace(quint32 scanCode)
{
    if (scanCode < firstDigitScanCode || scanCode > firstDigitScanCode + 8)
        return std::nullopt;
    return int(scanCode - firstDigitScanCode) + 1;
}
