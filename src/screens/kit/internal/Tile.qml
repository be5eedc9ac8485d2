import QtQuick
import Velmora.Kit

/// One tile of a `TilePicker`.
RadioChoice {
    id: root

    required property Item picture

    implicitWidth: Math.max(92, Math.ceil(implicitContentWidth))
    corner: 9

    contentItem: TileLabel {
        text: root.text
        picture: root.picture
        corner: root.corner
        on: root.on
        lit: root.lit
    }
}
