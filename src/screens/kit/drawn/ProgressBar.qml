import QtQuick
import Velmora.Theme

/// The progress of an operation: `value` from 0 to 1. `name` describes the operation.
Rectangle {
    id: root

    required property string name
    required property real value
    readonly property real share: Math.max(0, Math.min(1, value))

    implicitWidth: 160
    implicitHeight: 4
    radius: height / 2
    color: Theme.ink(0.12)
    Accessible.role: Accessible.ProgressBar
    Accessible.name: name
    Accessible.description: Math.round(share * 100) + " %"

    Rectangle {
        // Never narrower than its round ends, unless the value is 0.
        width: root.share > 0 ? Math.max(height, root.share * parent.width) : 0
        height: parent.height
        radius: root.radius
        color: Theme.accent
    }
}
