import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The chevron and the title of a disclosure.
Item {
    id: root

    required property string text
    required property bool expanded
    required property color ink

    implicitWidth: words.x + words.implicitWidth
    implicitHeight: words.implicitHeight

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        width: 12
        name: "chevron.right"
        size: 9
        weight: "bold"
        color: root.enabled ? Theme.text2 : Theme.text4
        rotation: root.expanded ? 90 : 0

        Behavior on rotation {
            NumberAnimation {
                duration: Motion.cardDuration
                easing: Springs.even
            }
        }
    }

    AppText {
        id: words

        x: 18
        width: parent.width - x
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        weight: Font.DemiBold
        color: root.ink
        Accessible.ignored: true
    }
}
