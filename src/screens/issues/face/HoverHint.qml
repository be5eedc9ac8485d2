import QtQuick
import Velmora.Issues
import Velmora.Kit

// The hint of what is under the pointer on one row or card at a time. Itself of no size, so that it never stands between
// the pointer and a cell.
Item {
    id: root

    required property IssueFace face

    readonly property hotSpot spot: face?.hotSpot ?? RowFitting.noSpot()
    // Pressed: the hint would lie over the picker that opened.
    property bool isHushed: false

    onSpotChanged: isHushed = false
    onFaceChanged: isHushed = false
    parent: face
    visible: face !== null && face.isHovered

    Item {
        x: root.spot.box.x
        y: root.spot.box.y
        width: root.spot.box.width
        height: root.spot.box.height

        HintTip {
            shown: root.visible && !root.isHushed
            text: root.spot.hint
        }
    }

    Connections {
        target: root.face

        function onPickRequested() {
            root.isHushed = true;
        }
    }
}
