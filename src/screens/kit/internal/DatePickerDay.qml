import QtQuick
import Velmora.Theme
import Velmora.Kit

/// A day in the grid of a month: on a disc if it is chosen, in the accent colour if it is today. `number` 0 stands for
/// an empty cell.
FocusableItem {
    id: root

    required property int number
    required property bool picked
    required property bool current
    required property bool marked

    implicitHeight: 28
    enabled: number > 0
    focusPolicy: Qt.NoFocus
    corner: 14
    Accessible.selectable: true
    Accessible.selected: picked
    Accessible.ignored: number === 0

    contentItem: AppText {
        visible: root.number > 0
        text: root.number
        weight: root.picked || root.current ? Font.DemiBold : Font.Normal
        tabular: true
        color: root.picked ? Theme.textOnAccent : root.current ? Theme.accentText : Theme.text1
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    background: Item {
        DayDisc {
            anchors.centerIn: parent
            picked: root.picked
            lit: root.lit
            ringed: root.marked
        }
    }
}
