#pragma once

#include <QRectF>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// A part of a row or a card that says something under the pointer.
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

    /// In the row or card, in logical pixels.
    QRectF box;
    /// Empty where nothing is to be said.
    QString hint;
    /// The picker (`PropertyOptions::Kind`) that a click there opens.
    int kind = noPicker;

    bool isCell() const { return kind != noPicker; }

    bool operator==(const HotSpot &) const = default;
};
