pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Theme

/// A control in each of its states, side by side: at rest, under the pointer, pressed, with the keyboard focus,
/// disabled.
Row {
    id: root

    required property string caption
    required property Component sample
    property real cell: 150

    height: 44

    AppText {
        width: 130
        anchors.verticalCenter: parent.verticalCenter
        text: root.caption
        role: TypeScale.Caption
        color: Theme.text2
    }

    Repeater {
        model: 5

        StateCell {
            width: root.cell
            height: root.height
            sample: root.sample
        }
    }
}
