import QtQuick
import Velmora.Theme

// The background of a row that is focused, checked, open or under the pointer.
Item {
    id: root

    required property color fill
    required property bool isFocused

    Rectangle {
        y: Metrics.rowFillInset
        width: root.width
        height: root.height - 2 * Metrics.rowFillInset
        radius: Metrics.radiusRow
        color: root.fill
    }

    Rectangle {
        visible: root.isFocused
        y: Metrics.focusBarInset
        width: Metrics.focusBarWidth
        height: root.height - 2 * Metrics.focusBarInset
        radius: width / 2
        color: Theme.accent
    }
}
