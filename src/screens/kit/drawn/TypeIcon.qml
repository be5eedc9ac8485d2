import QtQuick
import Velmora.Model
import Velmora.Kit

/// The symbol of an issue type at font size `size`, in a square of `size` + 2. The name of the type is its hint.
Item {
    id: root

    required property issueType type
    property real size: 11
    readonly property int border: IconAddresses.symbolBorder(IconAddresses.symbolSide(size))

    implicitWidth: size + 2
    implicitHeight: size + 2
    Accessible.role: Accessible.Graphic
    Accessible.name: type.name

    // Large symbols are wider than their square.
    DrawnIcon {
        anchors.centerIn: parent
        side: root.size + 2 + 2 * root.border
        source: IconAddresses.type(root.type, root.size)
        Accessible.ignored: true
    }

    HoverHandler {
        id: pointer
    }

    HintTip {
        shown: pointer.hovered
        text: root.type.name
    }
}
