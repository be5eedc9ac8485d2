import QtQuick
import Velmora.Theme

/// A due date: the calendar symbol and the text of the date, which is passed in. `late` makes it red, and `compact`
/// omits the text.
Rectangle {
    id: root

    required property string text
    property bool late: false
    property bool compact: false
    readonly property color ink: late ? Theme.redText : Theme.text2

    implicitWidth: Math.ceil(line.implicitWidth) + 14
    implicitHeight: Metrics.chipHeight
    radius: height / 2
    color: "transparent"
    border.color: late ? Qt.rgba(Theme.red.r, Theme.red.g, Theme.red.b, 0.4) : Theme.chipOutline
    Accessible.role: Accessible.StaticText
    Accessible.name: "Échéance : " + text

    Row {
        id: line

        anchors.verticalCenter: parent.verticalCenter
        x: 7
        spacing: 4

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "calendar"
            size: 10
            color: root.ink
        }

        AppText {
            visible: !root.compact
            text: root.text
            role: TypeScale.Badge
            tabular: true
            color: root.ink
            Accessible.ignored: true
        }
    }
}
