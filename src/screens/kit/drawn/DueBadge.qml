import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A due date: the calendar symbol and the text of the date, which is passed in. `late` makes it red, and `compact`
/// omits the text.
ChipGround {
    id: root

    required property string text
    property bool late: false
    property bool compact: false

    kind: ChipGround.Due
    outline: late ? Qt.rgba(Theme.red.r, Theme.red.g, Theme.red.b, 0.4) : Theme.chipOutline
    ink: late ? Theme.redText : Theme.text2
    implicitWidth: compact ? Metrics.rowDueCompact : Math.ceil(date.implicitWidth) + frame
    Accessible.role: Accessible.StaticText
    Accessible.name: "Échéance : " + text

    AppText {
        id: date
        visible: !root.compact
        x: root.textStart
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        role: TypeScale.Badge
        tabular: true
        color: root.ink
        Accessible.ignored: true
    }
}
