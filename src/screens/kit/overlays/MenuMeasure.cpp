#include "screens/kit/overlays/MenuMeasure.h"

#include "screens/theme/TypeScale.h"

#include <QFontMetricsF>

#include <cmath>

namespace {

qreal widthOf(const QString &text, TypeScale::Role role)
{
    return std::ceil(QFontMetricsF(TypeScale::fontOf(role)).horizontalAdvance(text));
}

bool endsOrDisturbsALine(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
           c.category() == QChar::Separator_Paragraph;
}

} // namespace

QString MenuMeasure::oneLine(const QString &text) const
{
    QString line = text;
    for (QChar &c : line) {
        if (endsOrDisturbsALine(c))
            c = u' ';
    }
    return line;
}

qreal MenuMeasure::titleWidth(const QString &text) const
{
    return widthOf(text, TypeScale::Body);
}

qreal MenuMeasure::shortcutWidth(const QString &text) const
{
    return widthOf(text, TypeScale::Small);
}
