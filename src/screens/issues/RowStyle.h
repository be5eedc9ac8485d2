#pragma once

#include "model/DisplayProperties.h"
#include "screens/theme/TypeScale.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What all rows of a list have in common. They share one object, so that each has less of its own to keep up to date.
class RowStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(DisplayProperties display MEMBER display NOTIFY changed FINAL)
    /// Of the key's column, in logical pixels.
    Q_PROPERTY(int keyWidth MEMBER keyWidth NOTIFY changed FINAL)
    /// Of the bars of a priority, and of the dashes of none.
    Q_PROPERTY(QColor ink MEMBER ink NOTIFY changed FINAL)
    Q_PROPERTY(QColor faint MEMBER faint NOTIFY changed FINAL)
    /// Of what stands beside the summary.
    Q_PROPERTY(QColor quiet MEMBER quiet NOTIFY changed FINAL)
    /// Of a finished status.
    Q_PROPERTY(QColor done MEMBER done NOTIFY changed FINAL)
    /// Round labels and due dates.
    Q_PROPERTY(QColor outline MEMBER outline NOTIFY changed FINAL)
    /// Of a due date that has passed, and round it.
    Q_PROPERTY(QColor late MEMBER late NOTIFY changed FINAL)
    Q_PROPERTY(QColor lateOutline MEMBER lateOutline NOTIFY changed FINAL)
    /// Of the summary; of keys and dates; of a parent's summary. What a line of each leaves free above and below it.
    Q_PROPERTY(QFont titleFont READ titleFont CONSTANT FINAL)
    Q_PROPERTY(double titleLeading READ titleLeading CONSTANT FINAL)
    Q_PROPERTY(QFont figuresFont READ figuresFont CONSTANT FINAL)
    Q_PROPERTY(QFont smallFont READ smallFont CONSTANT FINAL)
    Q_PROPERTY(double smallLeading READ smallLeading CONSTANT FINAL)

public:
    using QObject::QObject;

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
    QColor ink;
    QColor faint;
    QColor quiet;
    QColor done;
    QColor outline;
    QColor late;
    QColor lateOutline;

Q_SIGNALS:
    void changed();
};
