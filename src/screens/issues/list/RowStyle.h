#pragma once

#include "model/DisplayProperties.h"
#include "screens/issues/face/IssueStyle.h"
#include "screens/theme/Metrics.h"
#include "screens/theme/TypeScale.h"

/// The style that all rows of a list share.
class RowStyle : public IssueStyle
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(DisplayProperties display MEMBER display NOTIFY changed FINAL)
    /// The width of the key column, in logical pixels.
    Q_PROPERTY(int keyWidth MEMBER keyWidth NOTIFY changed FINAL)
    /// The width of the last column, with the date or the latest event, in logical pixels.
    Q_PROPERTY(int updatedWidth MEMBER updatedWidth NOTIFY changed FINAL)
    /// The fonts of the summary and of keys and dates, with the space above and below the text within a line.
    Q_PROPERTY(QFont titleFont READ titleFont CONSTANT FINAL)
    Q_PROPERTY(double titleLeading READ titleLeading CONSTANT FINAL)
    Q_PROPERTY(QFont figuresFont READ figuresFont CONSTANT FINAL)
    Q_PROPERTY(double smallLeading READ smallLeading CONSTANT FINAL)

public:
    using IssueStyle::IssueStyle;

    static QFont titleFont() { return TypeScale().font(TypeScale::Body, QFont::Medium); }
    static double titleLeading() { return TypeScale().halfLeading(TypeScale::Body); }
    static QFont figuresFont()
    {
        return TypeScale().font(TypeScale::Small, TypeScale::roleWeight, true);
    }
    static double smallLeading() { return TypeScale().halfLeading(TypeScale::Small); }

    DisplayProperties display;
    int keyWidth = 0;
    int updatedWidth = Metrics::rowDate;
};
