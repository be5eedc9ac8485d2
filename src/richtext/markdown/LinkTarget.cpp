#include "richtext/markdown/LinkTarget.h"

#include <algorithm>
#include <cctype>

namespace {

/// True for the reserved and unreserved characters of RFC 3986.
bool isURLCharacter(char byte)
{
    constexpr std::string_view punctuation = "-._~:/?#[]@!$&'()*+,;=";
    return (uchar(byte) < 0x80 && std::isalnum(uchar(byte)) != 0) || punctuation.contains(byte);
}

bool isEscape(QByteArrayView text)
{
    return text.size() >= 3 && text[0] == '%' && std::isxdigit(uchar(text[1])) != 0 &&
           std::isxdigit(uchar(text[2])) != 0;
}

} // namespace

QString LinkTarget::absoluteString(const QByteArray &utf8)
{
    QByteArray url;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        if (isURLCharacter(utf8[i]) || isEscape(QByteArrayView(utf8).sliced(i)))
            url.append(utf8[i]);
        else
            url.append('%').append(utf8.sliced(i, 1).toHex().toUpper());
    }
    return QString::fromLatin1(url);
}
