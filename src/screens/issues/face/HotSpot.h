#pragma once

#include <QObject>
#include <QRectF>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// A part of a row or a card that has a hint or a picker.
class HotSpot
{
    Q_GADGET
    QML_VALUE_TYPE(hotSpot)
    Q_PROPERTY(QRectF box MEMBER box CONSTANT FINAL)
    Q_PROPERTY(QString hint MEMBER hint CONSTANT FINAL)
    Q_PROPERTY(int kind MEMBER kind CONSTANT FINAL)
    Q_PROPERTY(bool isCell READ isCell CONSTANT FINAL)

public:
    static constexpr int noPicker = -1;

    /// The area within the row or card, in logical pixels.
    QRectF box;
    /// Empty if there is no hint.
    QString hint;
    /// The kind of picker (`PropertyOptions::Kind`) that a click opens.
    int kind = noPicker;

    bool isCell() const { return kind != noPicker; }

    bool operator==(const HotSpot &) const = default;
};
