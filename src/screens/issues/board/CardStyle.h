#pragma once

#include "screens/issues/face/IssueStyle.h"
#include "screens/theme/TypeScale.h"

/// The style that all cards of a board share.
class CardStyle : public IssueStyle
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor fill MEMBER fill NOTIFY changed FINAL)
    /// The outlines of a card at rest, of a focused card, and of a card that is checked or open.
    Q_PROPERTY(QColor restEdge MEMBER restEdge NOTIFY changed FINAL)
    Q_PROPERTY(QColor focusEdge MEMBER focusEdge NOTIFY changed FINAL)
    Q_PROPERTY(QColor strongEdge MEMBER strongEdge NOTIFY changed FINAL)
    /// The outline of the priority cell.
    Q_PROPERTY(QColor cellEdge MEMBER cellEdge NOTIFY changed FINAL)
    /// The duration in which a card is raised under the pointer, in milliseconds. 0 raises it at once.
    Q_PROPERTY(int liftDuration MEMBER liftDuration NOTIFY changed FINAL)

public:
    using IssueStyle::IssueStyle;

    /// The font of the summary, and the height of its lines in logical pixels.
    static QFont titleFont() { return TypeScale().font(TypeScale::Body, QFont::Medium); }
    static double titleLine() { return TypeScale().lineHeight(TypeScale::Body); }

    QColor fill;
    QColor restEdge;
    QColor focusEdge;
    QColor strongEdge;
    QColor cellEdge;
    int liftDuration = 0;
};
