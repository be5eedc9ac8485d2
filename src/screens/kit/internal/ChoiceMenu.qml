pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Kit

/// A menu of choices, of which one has a check mark. It opens with that choice highlighted.
PopupMenu {
    id: root

    required property list<string> choices
    required property int current

    signal chosen(index: int)

    onOpened: currentIndex = current

    Repeater {
        model: root.choices

        PopupMenuItem {
            required property int index
            required property string modelData

            text: modelData
            checked: index === root.current
            onTriggered: root.chosen(index)
        }
    }
}
