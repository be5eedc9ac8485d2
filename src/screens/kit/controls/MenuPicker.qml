pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Theme
import Velmora.Kit

/// One choice out of a menu: shows the current one, and opens the others on a press, on Space, Return and the down key.
/// `name` is what it chooses. The menu is made when it is opened. (No `FocusableItem`: to screen readers that is always a
/// button, and this is a combo box.)
Item {
    id: root

    required property string name
    required property list<string> choices
    required property int current
    property bool opened: false
    readonly property string currentChoice: choices[current] ?? ""
    /// Under the pointer or pressed.
    property bool lit: enabled && (pointer.containsMouse || down)
    property bool down: pointer.pressed
    /// Shows the keyboard's focus.
    property bool ringed: activeFocus

    signal chosen(index: int)
    signal clicked()

    implicitWidth: Math.ceil(label.implicitWidth) + 19
    implicitHeight: Metrics.menuRowHeight
    activeFocusOnTab: true
    onClicked: opened = true
    Keys.onDownPressed: opened = true
    Keys.onSpacePressed: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.ComboBox
    Accessible.name: name
    Accessible.description: currentChoice
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: clicked()

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Theme.ink(root.down ? 0.12 : root.lit ? 0.09 : 0.06)
    }

    MenuPickerLabel {
        id: label

        x: 11
        width: root.width - 19
        height: root.height
        text: root.currentChoice
        ink: root.enabled ? Theme.text1 : Theme.text4
    }

    MouseArea {
        id: pointer

        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.clicked()
    }

    FocusRing {
        shown: root.ringed
        corner: root.height / 2
    }

    When {
        shown: root.opened

        // A click on the picker while the menu is open.
        MouseArea {
            width: root.width
            height: root.height
            onClicked: menu.close()

            ChoiceMenu {
                id: menu

                y: root.height + 4
                leavePressesToParent: true
                title: root.name
                choices: root.choices
                current: root.current
                onChosen: index => root.chosen(index)
                onClosed: root.opened = false
                Component.onCompleted: open()
            }
        }
    }
}
