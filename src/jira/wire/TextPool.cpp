#include "jira/wire/TextPool.h"

namespace {

QString made(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

} // namespace

QString TextPool::text(std::string_view utf8)
{
    if (utf8.empty() || utf8.size() > LongestRemembered)
        return made(utf8);
    Place &place = m_places[std::hash<std::string_view>()(utf8) % Places];
    if (place.utf8 != utf8) {
        place.utf8 = utf8;
        place.text = made(utf8);
    }
    return place.text;
}
