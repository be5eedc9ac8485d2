import QtQuick
import Velmora.Kit
import Velmora.Theme

/// Tells what a preview leaves out. It has no height without a text.
Rectangle {
    id: root

    required property string text

    visible: text.length > 0
    height: visible ? label.implicitHeight + 16 : 0
    color: Theme.pane

    Hairline {
        width: parent.width
        color: Theme.divider
    }

    AppText {
        id: label

        x: Metrics.gapSection
        y: 8
        width: parent.width - 2 * x
        role: TypeScale.Small
        color: Theme.text2
        wrapMode: Text.Wrap
        text: root.text
    }
}
