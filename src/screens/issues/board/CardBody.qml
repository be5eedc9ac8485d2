import QtQuick
import Velmora.Issues

// The visible content of a card. Its base class draws everything except the summary.
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
