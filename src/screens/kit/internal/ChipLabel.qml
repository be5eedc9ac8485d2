import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The icon and the title of a chip, side by side. The title elides where the chip is narrower than it would like.
Item {
    id: label

    required property string title
    required property Item leading
    required property color ink
    readonly property real start: leading ? leading.implicitWidth + 6 : 0

    implicitWidth: start + words.implicitWidth
    implicitHeight: words.implicitHeight

    ItemSlot {
        width: label.leading ? label.leading.implicitWidth : 0
        height: parent.height
        content: label.leading
        opacity: label.enabled ? 1 : 0.45
    }

    AppText {
        id: words

        x: label.start
        width: parent.width - x
        anchors.verticalCenter: parent.verticalCenter
        text: label.title
        role: TypeScale.Small
        weight: Font.Medium
        color: label.ink
        Accessible.ignored: true
    }
}
