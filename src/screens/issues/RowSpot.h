#pragma once

#include <QString>
#include <QtQml/qqmlregistration.h>

/// A part of a row that says something under the pointer.
class RowSpot
{
    Q_GADGET
    QML_VALUE_TYPE(rowSpot)
    Q_PROPERTY(double x MEMBER x CONSTANT FINAL)
    Q_PROPERTY(double width MEMBER width CONSTANT FINAL)
    Q_PROPERTY(QString hint MEMBER hint CONSTANT FINAL)
    Q_PROPERTY(bool isCell MEMBER isCell CONSTANT FINAL)

public:
    /// Logical pixels from the row's left edge.
    double x = 0;
    double width = 0;
    /// Empty where nothing is to be said.
    QString hint;
    /// A click there changes what it shows.
    bool isCell = false;

    bool operator==(const RowSpot &) const = default;
};
