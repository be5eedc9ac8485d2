import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The chevron and the title of a disclosure.
Item {
    id: label

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
        color: label.enabled ? Theme.text2 : Theme.text4
        rotation: label.expanded ? 90 : 0

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
        text: label.text
        weight: Font.DemiBold
        color: label.ink
        Accessible.ignored: true
    }
}
