#pragma once

#include "jira/wire/AvatarUrlsDTO.h"
#include "jira/wire/WireMember.h"
#include "model/ADFNode.h"
#include "richtext/DecodingError.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>

#include <array>
#include <expected>
#include <optional>
#include <simdjson.h>
#include <string_view>
#include <tuple>
#include <utility>

/// Reads parsed JSON into fields and records. The depth of the recursion is limited by the record types, and within a
/// document by the limit for documents. The position of an error is added while the functions return, so that
/// successful reading has no cost for it.
namespace WireReader {

using Element = simdjson::dom::element;
using Result = std::expected<void, DecodingError>;

Result read(const Element &element, QString &text);
Result read(const Element &element, bool &value);
/// Reads any integer that fits into 64 bits, in every notation (3, 3.0, 3e0).
Result read(const Element &element, qint64 &number);
/// Reads an instant or a day; absent for null and for a text that is none.
Result read(const Element &element, std::optional<QDateTime> &instant);
Result read(const Element &element, std::optional<QDate> &day);
Result read(const Element &element, ADFNode &document);
/// Every address must be a string, including those that are not kept.
Result read(const Element &element, AvatarUrlsDTO &addresses);
template <typename T>
Result read(const Element &element, std::optional<T> &value);
template <typename T>
Result read(const Element &element, QList<T> &list);
template <typename T>
Result read(const Element &element, QMap<QString, T> &map);
template <typename DTO>
    requires requires { DTO::wireMembers(); }
Result read(const Element &element, DTO &record);

/// The memory in bytes that the lists of one response may need: twice the size of the longest response. A small text
/// can stand for many times its size in records.
inline constexpr std::size_t MostMemory = 128ULL * 1024 * 1024;
/// Starts counting the memory of a response, which is read by one thread.
void beginResponse();
/// Counts the memory of a list before it is created; fails beyond `MostMemory`.
Result claim(std::size_t count, std::size_t itemSize);
/// True unless the element is an array of more than `most` items.
inline bool isWithin(const Element &element, qsizetype most)
{
    simdjson::dom::array items;
    return element.get(items) || qsizetype(items.size()) <= most;
}

QString textOf(std::string_view utf8);
/// An error with this message and no position yet.
Result failure(const char *message);
/// Adds the position to the error of a value that is the member `name` of an object.
Result inMember(std::string_view name, Result failed);
/// Adds the position to the error of a value that is the item `index` of an array.
Result inItem(qsizetype index, Result failed);

template <typename T>
inline constexpr bool isOptional = false;
template <typename T>
inline constexpr bool isOptional<std::optional<T>> = true;

template <typename T>
Result read(const Element &element, std::optional<T> &value)
{
    if (!element.is_null())
        return read(element, value.emplace());
    value.reset();
    return {};
}

template <typename T>
Result read(const Element &element, QList<T> &list)
{
    simdjson::dom::array items;
    if (element.get(items))
        return failure("liste attendue");
    if (auto claimed = claim(items.size(), sizeof(T)); !claimed)
        return claimed;
    list.clear();
    list.reserve(qsizetype(items.size()));
    for (const Element item : items) {
        if (auto done = read(item, list.emplaceBack()); !done)
            return inItem(list.size() - 1, std::move(done));
    }
    return {};
}

template <typename T>
Result read(const Element &element, QMap<QString, T> &map)
{
    simdjson::dom::object members;
    if (element.get(members))
        return failure("objet attendu");
    if (auto claimed = claim(members.size(), 2 * sizeof(std::pair<QString, T>)); !claimed)
        return claimed;
    map.clear();
    for (const auto &[name, value] : members) {
        if (auto done = read(value, map[textOf(name)]); !done)
            return inMember(name, std::move(done));
    }
    return {};
}

/// Reads one member into the field with the same name and records that it was present. Unknown names are ignored.
template <typename DTO, size_t... Index>
Result readMember(DTO &record, std::string_view name, const Element &value,
                  std::array<bool, sizeof...(Index)> &found, std::index_sequence<Index...>)
{
    Result done;
    const auto readAs = [&]<size_t Place>() {
        // A constant of the function, so that a name is compared without a call.
        static constexpr auto Member = std::get<Place>(DTO::wireMembers());
        if (Member.name != name)
            return false;
        found[Place] = true;
        done = isWithin(value, Member.most) ? read(value, record.*Member.field)
                                            : failure("trop d'éléments");
        return true;
    };
    (readAs.template operator()<Index>() || ...);
    return done ? done : inMember(name, std::move(done));
}

/// The name of the first required field that was not present; empty if there is none.
template <typename DTO, typename... Field, size_t... Index>
std::string_view missingMember(const std::tuple<WireMember<DTO, Field>...> &members,
                               const std::array<bool, sizeof...(Field)> &found,
                               std::index_sequence<Index...>)
{
    std::string_view missing;
    const auto isMissing = [&](std::string_view name, bool optional, bool present) {
        if (!optional && !present)
            missing = name;
        return !missing.empty();
    };
    (isMissing(std::get<Index>(members).name, isOptional<Field>, found[Index]) || ...);
    return missing;
}

template <typename DTO>
    requires requires { DTO::wireMembers(); }
Result read(const Element &element, DTO &record)
{
    static constexpr auto Members = DTO::wireMembers();
    constexpr auto Indexes = std::make_index_sequence<std::tuple_size_v<decltype(Members)>>();
    simdjson::dom::object object;
    if (element.get(object))
        return failure("objet attendu");
    std::array<bool, Indexes.size()> found{};
    for (const auto &[name, value] : object) {
        if (auto done = readMember(record, name, value, found, Indexes); !done)
            return done;
    }
    const auto missing = missingMember(Members, found, Indexes);
    return missing.empty() ? Result() : inMember(missing, failure("absent"));
}

} // namespace WireReader
