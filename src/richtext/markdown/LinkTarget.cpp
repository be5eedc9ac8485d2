#include "richtext/markdown/LinkTarget.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

namespace {

/// For each byte, whether it is a reserved or unreserved character of RFC 3986.
constexpr std::array<bool, 256> urlCharacters = [] {
    std::array<bool, 256> result{};
    for (const char character :
         std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                          "0123456789-._~:/?#[]@!$&'()*+,;="))
        result[uchar(character)] = true;
    return result;
}();

bool isEscape(QByteArrayView text)
{
    return text.size() >= 3 && text[0] == '%' && std::isxdigit(uchar(text[1])) != 0 &&
           std::isxdigit(uchar(text[2])) != 0;
}

} // namespace

QString LinkTarget::absoluteString(const QString &target)
{
    const bool isURL = std::ranges::all_of(target, [](QChar character) {
        return character.unicode() < urlCharacters.size() && urlCharacters[character.unicode()];
    });
    if (isURL)
        return target;
    const QByteArray utf8 = target.toUtf8();
    QByteArray url;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        if (urlCharacters[uchar(utf8[i])] || isEscape(QByteArrayView(utf8).sliced(i)))
            url.append(utf8[i]);
        else
            url.append('%').append(utf8.sliced(i, 1).toHex().toUpper());
    }
    return QString::fromLatin1(url);
}
