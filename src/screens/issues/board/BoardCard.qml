pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit

// One issue of the board. The base class draws it.
CardFace {
    id: root

    required property string accessibleName
    // The board has the keyboard focus, so screen readers announce the focused card.
    property bool hasKeyboard: false

    isDraggable: true
    Accessible.role: Accessible.ListItem
    Accessible.name: root.accessibleName
    Accessible.focusable: true
    Accessible.focused: root.isFocused && root.visible && root.hasKeyboard
    Accessible.selectable: true
    Accessible.selected: root.isChecked
    Accessible.onPressAction: root.clicked(Qt.point(0, 0), 0)

    When {
        shown: AssistiveReader.isPresent

        CardCells {
            card: root
        }
    }
}
