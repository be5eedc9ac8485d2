#pragma once

#include "screens/issues/face/IssueStyle.h"
#include "screens/theme/TypeScale.h"

/// What all cards of a board have in common.
class CardStyle : public IssueStyle
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor fill MEMBER fill NOTIFY changed FINAL)
    /// Round a card at rest, a focused one, and one that is checked or open.
    Q_PROPERTY(QColor restEdge MEMBER restEdge NOTIFY changed FINAL)
    Q_PROPERTY(QColor focusEdge MEMBER focusEdge NOTIFY changed FINAL)
    Q_PROPERTY(QColor strongEdge MEMBER strongEdge NOTIFY changed FINAL)
    /// Round the priority.
    Q_PROPERTY(QColor cellEdge MEMBER cellEdge NOTIFY changed FINAL)
    /// How long a card takes to rise under the pointer, in milliseconds; 0 for at once.
    Q_PROPERTY(int liftDuration MEMBER liftDuration NOTIFY changed FINAL)
    /// Of the summary, and the distance of its lines.
    Q_PROPERTY(QFont titleFont READ titleFont CONSTANT FINAL)
    Q_PROPERTY(double titleLeading READ titleLeading CONSTANT FINAL)
    Q_PROPERTY(double titleLine READ titleLine CONSTANT FINAL)

public:
    using IssueStyle::IssueStyle;

    static QFont titleFont() { return TypeScale().font(TypeScale::Body, QFont::Medium); }
    static double titleLeading() { return TypeScale().halfLeading(TypeScale::Body); }
    static double titleLine() { return TypeScale().lineHeight(TypeScale::Body); }

    QColor fill;
    QColor restEdge;
    QColor focusEdge;
    QColor strongEdge;
    QColor cellEdge;
    int liftDuration = 0;
};
