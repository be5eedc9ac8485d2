import QtQuick
import Velmora.Theme

// A cell of a card that can be changed on the spot.
RowCell {
    id: root

    property string hint

    Rectangle {
        anchors.fill: parent
        visible: pointer.hovered
        radius: Metrics.radiusSquare
        color: Theme.buttonHoverFill
    }

    HoverHandler {
        id: pointer
    }

    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.pressed()
    }
}
