import QtQuick
import Velmora.Kit

/// The program's logo. Its shadow extends beyond its square.
Item {
    id: root

    property real size: 64
    readonly property int margin: IconAddresses.glyphMargin(size)

    implicitWidth: size
    implicitHeight: size
    Accessible.role: Accessible.Graphic
    Accessible.name: "Velmora"

    Image {
        x: -root.margin
        y: -root.margin
        width: root.size + 2 * root.margin
        height: width
        sourceSize.width: width
        sourceSize.height: height
        source: IconAddresses.glyph(root.size)
    }
}
