import QtQuick
import Velmora.Theme

// A cell of a row that can be changed on the spot. The row sees to its pointer.
Item {
    id: root

    required property int kind
    required property string hint
    required property string spoken

    signal pressed()

    width: Metrics.smallButton
    height: Metrics.smallButton

    Accessible.role: Accessible.Button
    Accessible.name: root.spoken
    Accessible.onPressAction: root.pressed()
}
