import QtQuick
import Velmora.Issues

// What is seen of a card: all but its summary is drawn by its base.
CardFace {
    id: root

    titleHeight: title.implicitHeight

    CardTitle {
        id: title
        x: root.titleBox.x
        y: root.titleBox.y
        width: root.titleBox.width
        style: root.style
        text: root.issue.summary
    }
}
