#include "model/JSONValue.h"

#include "model/ParsedInteger.h"

#include <QLocale>

#include <cmath>

namespace {

/// 2^63. Doubles of this value or more do not fit into a signed 64-bit integer; the constant itself is exact.
constexpr double integerLimit = 9223372036854775808.0;

bool fitsInteger(double number)
{
    return number >= -integerLimit && number < integerLimit;
}

QString decimalText(double number)
{
    if (!std::isfinite(number) || number != std::trunc(number))
        return QString::number(number, 'g', QLocale::FloatingPointShortest);
    return fitsInteger(number) ? QString::number(qint64(number)) : QString::number(number, 'f', 0);
}

size_t hashOf(const JSONValue::Object &object, size_t seed)
{
    for (auto entry = object.cbegin(); entry != object.cend(); ++entry)
        seed = qHashMulti(seed, entry.key(), entry.value());
    return seed;
}

} // namespace

std::optional<QString> JSONValue::string() const
{
    if (const auto *text = asString())
        return *text;
    if (const auto *number = asNumber())
        return decimalText(*number);
    return std::nullopt;
}

std::optional<qint64> JSONValue::integer() const
{
    if (const auto *text = asString())
        return parsedInteger(*text);
    if (const auto *number = asNumber(); number && fitsInteger(*number))
        return qint64(*number);
    return std::nullopt;
}

size_t qHash(const JSONValue &value, size_t seed)
{
    if (const auto *text = value.asString())
        return qHashMulti(seed, 1, *text);
    if (const auto *number = value.asNumber())
        return qHashMulti(seed, 2, *number);
    if (const auto *flag = value.asBool())
        return qHashMulti(seed, 3, *flag);
    if (const auto *array = value.asArray())
        return qHashRange(array->cbegin(), array->cend(), qHash(4, seed));
    if (const auto *object = value.asObject())
        return hashOf(*object, qHash(5, seed));
    return qHash(0, seed);
}
