import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A label: its dot and its name in an outlined capsule.
ChipGround {
    id: root

    required property string name

    kind: ChipGround.Label
    outline: Theme.chipOutline
    ink: Theme.labelColor(name)
    implicitWidth: Math.ceil(label.implicitWidth) + frame
    Accessible.role: Accessible.StaticText
    Accessible.name: name

    AppText {
        id: label
        x: root.textStart
        width: Math.min(implicitWidth, root.width - root.frame)
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        role: TypeScale.Caption
        weight: Font.Medium
        color: Theme.text2
        Accessible.ignored: true
    }
}
