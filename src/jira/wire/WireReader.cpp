#include "jira/wire/WireReader.h"

#include "jira/JiraDate.h"
#include "jira/wire/TextPool.h"
#include "richtext/ADFCoding.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

thread_local std::size_t memoryLeft = 0;

/// The number of values inside of a value, at any depth.
std::size_t partsOf(const WireReader::Element &element)
{
    std::size_t count = 0;
    simdjson::dom::array items;
    simdjson::dom::object members;
    if (!element.get(items)) {
        for (const auto item : items)
            count += 1 + partsOf(item);
    } else if (!element.get(members)) {
        for (const auto &[name, value] : members)
            count += 1 + partsOf(value);
    }
    return count;
}

/// Reads a text that `parse` converts to a date; null gives none.
template <typename Date>
WireReader::Result readDate(const WireReader::Element &element, std::optional<Date> &date,
                            std::optional<Date> (*parse)(std::string_view))
{
    date.reset();
    if (element.is_null())
        return {};
    std::string_view utf8;
    if (element.get(utf8))
        return WireReader::failure("texte attendu");
    date = parse(utf8);
    return {};
}

} // namespace

namespace WireReader {

void beginResponse()
{
    memoryLeft = MostMemory;
}

Result claim(std::size_t count, std::size_t itemSize)
{
    if (count > memoryLeft / itemSize)
        return failure("trop d'éléments");
    memoryLeft -= count * itemSize;
    return {};
}

QString textOf(std::string_view utf8)
{
    // Each thread that decodes has its own pool.
    thread_local TextPool pool;
    return pool.text(utf8);
}

Result failure(const char *message)
{
    return std::unexpected(DecodingError{{}, QString::fromUtf8(message)});
}

Result inMember(std::string_view name, Result failed)
{
    QString &place = failed.error().place;
    const bool isBeforeMember = !place.isEmpty() && !place.startsWith(u'[');
    place = textOf(name) + (isBeforeMember ? u"."_s : QString()) + place;
    return failed;
}

Result inItem(qsizetype index, Result failed)
{
    return inMember("[" + std::to_string(index) + "]", std::move(failed));
}

Result read(const Element &element, QString &text)
{
    std::string_view utf8;
    if (element.get(utf8))
        return failure("texte attendu");
    text = textOf(utf8);
    return {};
}

Result read(const Element &element, bool &value)
{
    return element.get(value) ? failure("vrai ou faux attendu") : Result();
}

Result read(const Element &element, qint64 &number)
{
    int64_t whole = 0;
    if (!element.get(whole)) {
        number = whole;
        return {};
    }
    double real = 0;
    if (element.get(real) || real != std::trunc(real))
        return failure("nombre entier attendu");
    constexpr double Bound = 9223372036854775808.0; // 2^63
    if (real < -Bound || real >= Bound)
        return failure("nombre trop grand");
    number = qint64(real);
    return {};
}

Result read(const Element &element, std::optional<QDateTime> &instant)
{
    return readDate(element, instant, JiraDate::parse);
}

Result read(const Element &element, std::optional<QDate> &day)
{
    return readDate(element, day, JiraDate::parseDay);
}

Result read(const Element &element, ADFNode &document)
{
    if (auto claimed = claim(partsOf(element), sizeof(ADFNode)); !claimed)
        return claimed;
    auto decoded = ADFCoding::decodeNode(element);
    if (!decoded)
        return std::unexpected(std::move(decoded.error()));
    document = std::move(*decoded);
    return {};
}

Result read(const Element &element, AvatarUrlsDTO &addresses)
{
    simdjson::dom::object members;
    if (element.get(members))
        return failure("objet attendu");
    std::optional<std::string_view> large;
    std::optional<std::string_view> medium;
    for (const auto &[name, value] : members) {
        std::string_view address;
        if (value.get(address))
            return inMember(name, failure("texte attendu"));
        if (name == "48x48")
            large = address;
        else if (name == "32x32")
            medium = address;
    }
    if (large)
        addresses.large = textOf(*large);
    else if (medium)
        addresses.medium = textOf(*medium);
    return {};
}

} // namespace WireReader
