import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The background of a day's number.
Rectangle {
    id: root

    required property bool picked
    required property bool lit
    required property bool ringed

    width: 28
    height: 28
    radius: 14
    color: picked ? Theme.accentFill : lit ? Theme.buttonHoverFill : "transparent"

    FocusRing {
        shown: parent.ringed
        corner: 14
    }
}
