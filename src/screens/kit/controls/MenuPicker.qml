pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Theme
import Velmora.Kit

/// A combo box: it shows the current choice, and opens the menu of choices at a press and at Space, Return and the down
/// key. `name` describes what is chosen. The menu is created when it is opened. (It is not a `FocusableItem`, because
/// screen readers always see that as a button.)
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
    /// Shows the keyboard focus.
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
    Accessible.onPressAction: if (enabled) clicked()

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

        // Handles clicks on the picker while the menu is open.
        MouseArea {
            width: root.width
            height: root.height
            onClicked: menu.close()

            ChoiceMenu {
                id: menu

                y: root.height + 4
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
