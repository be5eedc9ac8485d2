#include "screens/documents/content/HexColor.h"

#include <algorithm>

namespace {

bool isHexDigit(QChar letter)
{
    const auto code = letter.unicode();
    return (code >= u'0' && code <= u'9') || (code >= u'a' && code <= u'f') ||
           (code >= u'A' && code <= u'F');
}

} // namespace

std::optional<QColor> colorFromHex(QStringView hex)
{
    constexpr qsizetype digits = 6;
    if (hex.startsWith(u'#'))
        hex = hex.sliced(1);
    if (hex.size() != digits || !std::ranges::all_of(hex, isHexDigit))
        return std::nullopt;
    return QColor::fromRgb(hex.toUInt(nullptr, 16));
}
