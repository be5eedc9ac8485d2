import QtQuick
import Velmora.Kit

/// The program's mark. Its shadow reaches beyond its square.
Item {
    id: glyph

    property real size: 64
    readonly property int margin: Pictures.glyphMargin(size)

    implicitWidth: size
    implicitHeight: size
    Accessible.role: Accessible.Graphic
    Accessible.name: "Velmora"

    Image {
        x: -glyph.margin
        y: -glyph.margin
        width: glyph.size + 2 * glyph.margin
        height: width
        sourceSize.width: width
        sourceSize.height: height
        source: Pictures.glyph(glyph.size)
    }
}
