import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// The type of an issue. It cannot be changed.
GlassCapsule {
    id: root

    required property issueType type

    implicitWidth: Math.ceil(label.implicitWidth) + 20
    implicitHeight: Metrics.propertyChipHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: "Type : " + type.name

    Row {
        id: label
        anchors.centerIn: parent
        spacing: Metrics.gapSmall

        TypeIcon {
            anchors.verticalCenter: parent.verticalCenter
            type: root.type
            Accessible.ignored: true
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            weight: Font.Medium
            text: root.type.name
            Accessible.ignored: true
        }
    }

    HoverHandler {
        id: pointer
    }

    HintTip {
        shown: pointer.hovered
        text: "Type de ticket"
    }
}
