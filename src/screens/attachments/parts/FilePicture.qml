import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// What stands for a file: its picture, cropped, or the symbol of its type.
Item {
    id: root

    required property attachmentFile file
    property real corner: 0
    property bool hasSquareFoot: false
    property real symbolSize: 40

    RemoteImage {
        anchors.fill: parent
        visible: root.file.isPicture
        address: root.file.picture
        corner: root.corner
        hasSquareFoot: root.hasSquareFoot
        symbolSize: Math.min(16, root.symbolSize)
    }

    Symbol {
        anchors.centerIn: parent
        visible: !root.file.isPicture
        name: root.file.symbol
        size: root.symbolSize
        color: Theme.text2
    }
}
