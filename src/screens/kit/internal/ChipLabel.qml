import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The icon and the title of a chip, side by side. The title is elided if the chip is narrower than its implicit width.
Item {
    id: root

    required property string title
    required property Item leading
    required property color ink
    readonly property real start: leading ? leading.implicitWidth + 6 : 0

    implicitWidth: start + words.implicitWidth
    implicitHeight: words.implicitHeight

    ItemSlot {
        width: root.leading ? root.leading.implicitWidth : 0
        height: parent.height
        content: root.leading
        opacity: root.enabled ? 1 : 0.45
    }

    AppText {
        id: words

        x: root.start
        width: parent.width - x
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
        role: TypeScale.Small
        weight: Font.Medium
        color: root.ink
        Accessible.ignored: true
    }
}
