#include "richtext/markdown/Entities.h"

#include <QString>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct Entity
{
    std::string_view name;
    std::string_view text;
};

constexpr auto entities = std::to_array<Entity>({
#include "richtext/markdown/EntityTable.inc"
});
static_assert(std::ranges::is_sorted(entities, {}, &Entity::name));

QByteArray named(const QByteArray &reference)
{
    const std::string_view name(reference.constData() + 1, size_t(reference.size() - 2));
    const auto found = std::ranges::lower_bound(entities, name, {}, &Entity::name);
    if (found == entities.end() || found->name != name)
        return reference;
    return QByteArray(found->text.data(), qsizetype(found->text.size()));
}

QByteArray numbered(const QByteArray &reference)
{
    const bool isHexadecimal = reference.size() > 2 && (reference[2] == 'x' || reference[2] == 'X');
    const QByteArray digits = reference.sliced(isHexadecimal ? 3 : 2).chopped(1);
    const char32_t number = digits.toUInt(nullptr, isHexadecimal ? 16 : 10);
    const bool isCharacter =
        number > 0 && number <= QChar::LastValidCodePoint && !QChar::isSurrogate(number);
    return QString::fromUcs4(isCharacter ? &number : U"\uFFFD", 1).toUtf8();
}

} // namespace

QByteArray Entities::decoded(const QByteArray &reference)
{
    return reference.startsWith("&#") ? numbered(reference) : named(reference);
}
