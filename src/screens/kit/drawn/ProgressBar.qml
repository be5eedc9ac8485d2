import QtQuick
import Velmora.Theme

/// How far a work is: `value` from 0 to 1. `name` is what is under way.
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
        // Never narrower than its round ends, once something is done.
        width: root.share > 0 ? Math.max(height, root.share * parent.width) : 0
        height: parent.height
        radius: root.radius
        color: Theme.accent
    }
}
