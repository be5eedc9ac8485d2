import QtQuick
import Velmora.Theme

/// The draggable edge between two panes. `moved` proposes a width between `minimum` and `maximum`. The left and right
/// keys move it by 16, Home and End to its limits, and a double click to `standard`. Set `trailing` if the resized pane
/// is on the right. The handle is visible while it is dragged, under the pointer and with the keyboard focus.
FocusScope {
    id: root

    required property string name
    required property real value
    required property real minimum
    required property real maximum
    required property real standard
    property bool trailing: false
    /// Shows the keyboard focus.
    property bool ringed: activeFocus
    property bool lit: grip.containsMouse || grip.pressed
    readonly property int direction: trailing ? -1 : 1
    readonly property bool dragged: grip.pressed

    signal moved(width: real)

    function move(wish: real) {
        const width = Math.round(Math.max(minimum, Math.min(maximum, wish)))
        if (width !== value)
            moved(width)
    }

    implicitWidth: 8
    activeFocusOnTab: true
    Accessible.role: Accessible.Splitter
    Accessible.name: name
    Accessible.description: Math.round(value) + " points"
    Accessible.focusable: true
    Accessible.onIncreaseAction: move(value + 16)
    Accessible.onDecreaseAction: move(value - 16)
    Keys.onLeftPressed: move(value - direction * 16)
    Keys.onRightPressed: move(value + direction * 16)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
        if (event.accepted)
            move(event.key === Qt.Key_Home ? minimum : maximum)
    }

    Rectangle {
        anchors.centerIn: parent
        width: 2
        height: parent.height
        radius: 1
        visible: root.ringed || root.lit
        color: root.ringed ? Theme.focusRing : Theme.divider
    }

    MouseArea {
        id: grip

        property real start: 0
        property real startValue: 0

        function sceneX(mouse: MouseEvent): real {
            return mapToItem(null, mouse.x, 0).x
        }

        function begin(mouse: MouseEvent) {
            start = sceneX(mouse)
            startValue = root.value
        }

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        cursorShape: Qt.SplitHCursor
        onPressed: mouse => begin(mouse)
        onPositionChanged: mouse => {
            if (pressed)
                root.move(startValue + root.direction * (sceneX(mouse) - start))
        }
        onDoubleClicked: root.move(root.standard)
    }
}
