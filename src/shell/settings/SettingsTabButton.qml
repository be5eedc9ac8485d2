import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// A tab of the settings.
FocusableItem {
    id: root

    required property settingsTab modelData
    property bool isChosen: false

    implicitWidth: 104
    implicitHeight: 56
    accessibleName: modelData.title
    Accessible.selectable: true
    Accessible.selected: isChosen

    background: Rectangle {
        radius: Metrics.radiusBubble
        color: root.isChosen ? Theme.openFill : "transparent"
    }

    contentItem: Item {
        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 9
            name: root.modelData.symbol
            size: 16
            color: root.isChosen ? Theme.accent : Theme.text2
        }

        AppText {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 31
            role: TypeScale.Small
            color: root.isChosen ? Theme.accentText : Theme.text2
            text: root.modelData.title
            Accessible.ignored: true
        }
    }
}
