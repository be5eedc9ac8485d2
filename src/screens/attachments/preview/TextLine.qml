import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A line of a text file after its number.
Item {
    id: root

    required property int index
    required property string line
    required property real numberWidth

    implicitHeight: content.implicitHeight
    Accessible.role: Accessible.ListItem
    Accessible.name: line

    AppText {
        width: root.numberWidth - 14
        role: TypeScale.Code
        horizontalAlignment: Text.AlignRight
        color: Theme.text3
        text: root.index + 1
        Accessible.ignored: true
    }

    AppText {
        id: content

        x: root.numberWidth
        width: root.width - x - Metrics.gapLarge
        role: TypeScale.Code
        wrapMode: Text.WrapAnywhere
        text: root.line
        Accessible.ignored: true
    }
}
