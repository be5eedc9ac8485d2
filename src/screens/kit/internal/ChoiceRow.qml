import QtQuick

/// A row of choices, of which one is chosen. Its children are the choices in their order. An arrow key chooses the
/// neighbour of the chosen one and gives it the focus, so that the row is one stop of the Tab key.
Row {
    id: root

    required property int count
    required property int current

    signal chosen(index: int)

    function step(by: int) {
        if (current + by < 0 || current + by >= count)
            return
        chosen(current + by)
        children[current].forceActiveFocus(Qt.TabFocusReason)
    }

    Keys.onLeftPressed: step(-1)
    Keys.onUpPressed: step(-1)
    Keys.onRightPressed: step(1)
    Keys.onDownPressed: step(1)
}
