#pragma once

#include "model/DisplayProperties.h"
#include "screens/issues/face/IssueStyle.h"
#include "screens/theme/TypeScale.h"

/// What all rows of a list have in common.
class RowStyle : public IssueStyle
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(DisplayProperties display MEMBER display NOTIFY changed FINAL)
    /// Of the key's column, in logical pixels.
    Q_PROPERTY(int keyWidth MEMBER keyWidth NOTIFY changed FINAL)
    /// Of the summary; of keys and dates; of a parent's summary. What a line of each leaves free above and below it.
    Q_PROPERTY(QFont titleFont READ titleFont CONSTANT FINAL)
    Q_PROPERTY(double titleLeading READ titleLeading CONSTANT FINAL)
    Q_PROPERTY(QFont figuresFont READ figuresFont CONSTANT FINAL)
    Q_PROPERTY(QFont smallFont READ smallFont CONSTANT FINAL)
    Q_PROPERTY(double smallLeading READ smallLeading CONSTANT FINAL)

public:
    using IssueStyle::IssueStyle;

    static QFont titleFont() { return TypeScale().font(TypeScale::Body, QFont::Medium); }
    static double titleLeading() { return TypeScale().halfLeading(TypeScale::Body); }
    static QFont figuresFont()
    {
        return TypeScale().font(TypeScale::Small, TypeScale::roleWeight, true);
    }
    static QFont smallFont() { return TypeScale().font(TypeScale::Small); }
    static double smallLeading() { return TypeScale().halfLeading(TypeScale::Small); }

    DisplayProperties display;
    int keyWidth = 0;
};
