#pragma once

#include <QString>

#include <array>
#include <string>
#include <string_view>

/// Creates strings and remembers the most recent ones, because responses repeat the same names, identifiers and
/// addresses of pictures. A remembered text shares its memory with all records that contain it.
class TextPool
{
public:
    /// The string with the given text in UTF-8.
    QString text(std::string_view utf8);

private:
    /// Longer texts are not remembered, because they are rarely repeated.
    static constexpr std::size_t LongestRemembered = 120;
    /// The number of texts that can be remembered at the same time.
    static constexpr std::size_t Places = 512;

    struct Place
    {
        std::string utf8;
        QString text;
    };
    std::array<Place, Places> m_places;
};
