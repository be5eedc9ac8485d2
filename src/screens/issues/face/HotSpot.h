#pragma once

#include "commands/Command.h"

#include <QObject>
#include <QRectF>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// A part of a row or a card that has a hint or a picker.
class HotSpot
{
    Q_GADGET
    QML_VALUE_TYPE(hotSpot)
    Q_PROPERTY(QRectF box MEMBER box CONSTANT FINAL)
    Q_PROPERTY(QString hint MEMBER hint CONSTANT FINAL)
    Q_PROPERTY(int kind READ kind CONSTANT FINAL)
    Q_PROPERTY(bool isCell READ isCell CONSTANT FINAL)
    Q_PROPERTY(bool isCheck MEMBER isCheck CONSTANT FINAL)

public:
    /// The area within the row or card, in logical pixels.
    QRectF box;
    /// Empty if there is no hint.
    QString hint;
    /// The picker that a click opens, if any.
    std::optional<PickerKind> picker;
    /// A click checks the issue.
    bool isCheck = false;

    /// The picker as a `Commands.PickerKind`; -1 without one.
    int kind() const { return picker ? int(*picker) : -1; }
    bool isCell() const { return picker.has_value(); }
    /// A click acts on the spot and not on the issue.
    bool takesClicks() const { return isCell() || isCheck; }
    /// True for a position inside the box. The right and the lower edge are outside.
    bool holds(QPointF place) const
    {
        return place.x() >= box.left() && place.x() < box.right() && place.y() >= box.top() &&
               place.y() < box.bottom();
    }

    bool operator==(const HotSpot &) const = default;
};
