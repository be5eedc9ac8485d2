#include "richtext/ValidText.h"

#include <QString>

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
    // Qt would write a question mark for an unpaired surrogate, which could not be told from one that the user typed.
    return text.isValidUtf16() ? text.toUtf8() : repaired(text).toUtf8();
}
