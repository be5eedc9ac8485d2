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
    /// The backgrounds of a row that is focused or under the pointer, of the open one, and of a checked one.
    Q_PROPERTY(QColor hoverFill MEMBER hoverFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor openFill MEMBER openFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor checkedFill MEMBER checkedFill NOTIFY changed FINAL)
    /// The mark at the left edge of the focused row.
    Q_PROPERTY(QColor focusBar MEMBER focusBar NOTIFY changed FINAL)
    /// The width of the key column, in logical pixels.
    Q_PROPERTY(int keyWidth MEMBER keyWidth NOTIFY changed FINAL)
    /// The width of the last column, with the date or the latest event, in logical pixels.
    Q_PROPERTY(int updatedWidth MEMBER updatedWidth NOTIFY changed FINAL)
    /// The colour of the parent's summary.
    Q_PROPERTY(QColor parentInk MEMBER parentInk NOTIFY changed FINAL)

public:
    using IssueStyle::IssueStyle;

    /// The fonts of the summary and of the parent's summary.
    static QFont titleFont() { return TypeScale().font(TypeScale::Body, QFont::Medium); }
    static QFont parentFont() { return TypeScale().font(TypeScale::Small); }

    QColor parentInk;
    QColor hoverFill;
    QColor openFill;
    QColor checkedFill;
    QColor focusBar;
    DisplayProperties display;
    int keyWidth = 0;
    int updatedWidth = Metrics::rowDate;
};
