pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Kit
import Velmora.Theme

/// One choice out of a menu: shows the current one, and opens the others on a press, on Space, Return and the down key.
/// `name` is what it chooses. The menu is made when it is opened.
FocusableItem {
    id: picker

    required property string name
    required property list<string> choices
    required property int current
    property bool opened: false
    readonly property string currentChoice: choices[current] ?? ""

    signal chosen(index: int)

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Metrics.menuRowHeight
    leftPadding: 11
    rightPadding: 8
    corner: height / 2
    accessibleName: name
    // The template keeps the role of a button.
    Accessible.description: currentChoice + (opened ? ", menu ouvert" : ", ouvre un menu")
    Keys.onDownPressed: opened = true
    onClicked: opened = true

    contentItem: MenuPickerLabel {
        text: picker.currentChoice
        ink: picker.enabled ? Theme.text1 : Theme.text4
    }

    background: Rectangle {
        radius: picker.corner
        color: Theme.ink(picker.down ? 0.12 : picker.lit ? 0.09 : 0.06)
    }

    When {
        shown: picker.opened

        Item {
            y: picker.height + 4

            ChoiceMenu {
                title: picker.name
                choices: picker.choices
                current: picker.current
                onChosen: index => picker.chosen(index)
                onClosed: picker.opened = false
                Component.onCompleted: open()
            }
        }
    }
}
