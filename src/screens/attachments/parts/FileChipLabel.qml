import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// What a chip shows of its file: the picture beside the name and the size. `loading` replaces the picture by a spinner.
Item {
    id: root

    required property attachmentFile file
    required property bool loading
    readonly property real widestName: 180
    readonly property real textLeft: 40

    implicitWidth: textLeft + Math.ceil(Math.max(title.width, sizeText.implicitWidth)) + Metrics.gapMedium

    Rectangle {
        id: picture

        x: 4
        y: 4
        width: 28
        height: 28
        radius: Metrics.radiusSquare
        color: Theme.card

        FilePicture {
            anchors.fill: parent
            visible: !root.loading
            file: root.file
            corner: picture.radius
            symbolSize: 14
        }

        Spinner {
            anchors.centerIn: parent
            visible: root.loading
            size: 14
        }
    }

    AppText {
        id: title

        x: root.textLeft
        y: 4
        width: Math.min(implicitWidth, root.widestName)
        role: TypeScale.Small
        weight: Font.Medium
        elide: Text.ElideMiddle
        text: root.file.name
        Accessible.ignored: true
    }

    AppText {
        id: sizeText

        x: root.textLeft
        y: 19
        role: TypeScale.Caption
        tabular: true
        color: Theme.text2
        text: root.file.sizeText
        Accessible.ignored: true
    }
}
