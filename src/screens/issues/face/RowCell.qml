import QtQuick
import Velmora.Theme

// An editable cell of a row. The row handles its pointer events.
Item {
    id: root

    required property string spoken
    // The kind of its picker (`Commands.PickerKind`).
    property int kind: -1
    readonly property rect box: Qt.rect(x, y, width, height)

    signal pressed()

    width: Metrics.smallButton
    height: Metrics.smallButton

    Accessible.role: Accessible.Button
    Accessible.name: root.spoken
    Accessible.onPressAction: root.pressed()
}
