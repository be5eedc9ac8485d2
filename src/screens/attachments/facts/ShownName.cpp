#include "screens/attachments/facts/ShownName.h"

namespace {

constexpr QChar ZeroWidthNonJoiner(0x200C);
constexpr QChar ZeroWidthJoiner(0x200D);

bool isHidden(QChar character)
{
    // Both are needed to write some scripts and emoji, and hide nothing.
    if (character == ZeroWidthNonJoiner || character == ZeroWidthJoiner)
        return false;
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

QString shownName(const QString &name)
{
    QString shown = name;
    for (QChar &character : shown) {
        if (isHidden(character))
            character = QChar::ReplacementCharacter;
    }
    return shown;
}
