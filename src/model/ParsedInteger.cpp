#include "model/ParsedInteger.h"

#include <QString>

#include <algorithm>

namespace {

bool isDecimalDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

std::optional<qint64> parsedInteger(QStringView text)
{
    const bool isSigned = text.startsWith(u'-') || text.startsWith(u'+');
    // The digits are checked here because the conversion below also accepts blanks.
    if (!std::ranges::all_of(text.sliced(isSigned ? 1 : 0), isDecimalDigit))
        return std::nullopt;
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}
