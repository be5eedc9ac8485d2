import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A row of a `FormCard` with a label and a value that is only shown. A long value wraps. Screen readers read both as
/// one text.
Item {
    id: root

    required property string text
    required property string value

    width: parent ? parent.width : 0
    implicitHeight: Math.max(40, words.height + 2 * Metrics.gapMedium)
    Accessible.role: Accessible.StaticText
    Accessible.name: text + " : " + value

    AppText {
        id: label

        x: Metrics.gapLarge
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        Accessible.ignored: true
    }

    AppText {
        id: words

        anchors.left: label.right
        anchors.leftMargin: Metrics.gapLarge
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gapLarge
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        wrapMode: Text.Wrap
        tabular: true
        color: Theme.text2
        text: root.value
        Accessible.ignored: true
    }
}
