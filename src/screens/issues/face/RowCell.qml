import QtQuick
import Velmora.Theme

// A cell of a row that can be changed on the spot. The row sees to its pointer.
Item {
    id: root

    required property string spoken
    // Of the picker (`PropertyOptions.Kind`).
    property int kind: -1
    readonly property rect box: Qt.rect(x, y, width, height)

    signal pressed()

    width: Metrics.smallButton
    height: Metrics.smallButton

    Accessible.role: Accessible.Button
    Accessible.name: root.spoken
    Accessible.onPressAction: root.pressed()
}
