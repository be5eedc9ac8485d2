import QtQuick
import Velmora.Theme

/// The dot in a label's colour.
Rectangle {
    id: root

    required property string name
    property real size: 7

    implicitWidth: size
    implicitHeight: size
    radius: size / 2
    color: Theme.labelColor(name)
    Accessible.role: Accessible.Graphic
    Accessible.name: name
}
