import QtQuick

/// A square picture of an image provider, drawn at the device pixels that it covers. `side` is in logical pixels.
Image {
    id: root

    required property real side

    width: side
    height: side
    sourceSize.width: Math.ceil(side)
    sourceSize.height: Math.ceil(side)
    Accessible.role: Accessible.Graphic
}
