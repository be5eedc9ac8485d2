import QtQuick
import Velmora.Issues
import Velmora.Kit

// The hint of the hot spot under the pointer, for one row or card at a time. The item has no size, so that it never
// covers a cell.
Item {
    id: root

    required property IssueFace face

    readonly property hotSpot spot: face?.hotSpot ?? RowFitting.noSpot()
    // Set by a press, because the hint would cover the picker that opens.
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
