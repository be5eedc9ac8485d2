import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// The tile of a file: its picture above its name and its size. `loading` covers the picture while the file is being
/// fetched. `current` draws the ring of the keyboard focus.
Rectangle {
    id: root

    required property attachmentFile file
    property bool loading: false
    property bool current: false
    /// The spinner turns. False for a stored picture.
    property bool spins: true
    readonly property real pictureHeight: 92

    signal clicked()
    signal menuRequested(x: real, y: real)

    implicitWidth: 141
    implicitHeight: 139
    radius: Metrics.radiusBubble
    color: Theme.card

    Accessible.role: Accessible.ListItem
    Accessible.name: root.file.name
    Accessible.description: root.file.sizeText
    Accessible.focusable: true
    Accessible.focused: root.current
    Accessible.onPressAction: root.clicked()

    Rectangle {
        width: parent.width
        height: root.pictureHeight + radius
        radius: root.radius
        color: Theme.ink(0.05)
    }

    // Covers the lower corners of the picture area, which are not rounded.
    Rectangle {
        y: root.pictureHeight
        width: parent.width
        height: root.radius
        color: root.color
    }

    FilePicture {
        width: parent.width
        height: root.pictureHeight
        file: root.file
        corner: root.radius
        hasSquareFoot: true
    }

    TileVeil {
        width: parent.width
        height: root.pictureHeight
        visible: root.loading
        spins: root.spins
        corner: root.radius
    }

    AppText {
        x: 10
        y: root.pictureHeight + 8
        width: parent.width - 2 * x
        role: TypeScale.Small
        weight: Font.Medium
        elide: Text.ElideMiddle
        text: root.file.name
        Accessible.ignored: true
    }

    AppText {
        x: 10
        y: root.pictureHeight + 24
        width: parent.width - 2 * x
        role: TypeScale.Caption
        tabular: true
        color: Theme.text2
        text: root.file.sizeText
        Accessible.ignored: true
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -1
        radius: root.radius + 1
        color: "transparent"
        border.width: 1
        border.color: Theme.ink(press.isHovered ? 0.16 : 0.08)
    }

    FocusRing {
        shown: root.current
        corner: root.radius
    }

    PressArea {
        id: press

        anchors.fill: parent
        onClicked: root.clicked()
        onMenuRequested: (x, y) => root.menuRequested(x, y)
    }

    HintTip {
        shown: press.isHovered && !press.isPressed
        text: root.file.tileHint
    }
}
