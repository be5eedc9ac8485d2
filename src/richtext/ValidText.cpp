#include "richtext/ValidText.h"

#include <QString>
#include <QStringConverter>

namespace {

bool isHalf(QStringView text, qsizetype at)
{
    const bool followsHigh = at > 0 && text[at - 1].isHighSurrogate();
    const bool precedesLow = at + 1 < text.size() && text[at + 1].isLowSurrogate();
    return (text[at].isHighSurrogate() && !precedesLow) ||
           (text[at].isLowSurrogate() && !followsHigh);
}

QString repaired(QStringView text)
{
    QString result = text.toString();
    for (qsizetype i = 0; i < result.size(); ++i) {
        if (isHalf(text, i))
            result[i] = QChar::ReplacementCharacter;
    }
    return result;
}

} // namespace

QByteArray validUTF8(QStringView text)
{
    // The encoder writes a question mark for an unpaired surrogate, which could not be told from one that the user typed.
    QStringEncoder encoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QByteArray utf8 = encoder(text);
    return encoder.hasError() ? repaired(text).toUtf8() : utf8;
}
