#pragma once

#include <QString>

#include <array>
#include <string>
#include <string_view>

/// Makes texts, and remembers the last ones, since answers say the same over and over: names, identifiers, addresses of
/// pictures. A text that is remembered costs no memory of its own, neither here nor in the records made from it.
class TextPool
{
public:
    QString text(std::string_view utf8);

private:
    /// Longer texts are hardly ever said twice.
    static constexpr std::size_t LongestRemembered = 120;
    static constexpr std::size_t Places = 512;

    struct Place
    {
        std::string utf8;
        QString text;
    };
    std::array<Place, Places> m_places;
};
