import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A row of a `FormCard`: a label with an optional caption below it, and the control at the end. The control must have
/// an accessible name of its own, which is normally the label.
Item {
    id: root

    required property string text
    property string caption
    default property alias control: holder.data

    width: parent ? parent.width : 0
    implicitWidth: label.implicitWidth + 40 + holder.width
    implicitHeight: Math.max(40, words.height + 2 * Metrics.gapMedium, holder.height + 2 * Metrics.gapSmall)

    Column {
        id: words

        x: Metrics.gapLarge
        width: holder.x - x - 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        AppText {
            id: label

            width: parent.width
            text: root.text
            wrapMode: Text.Wrap
            color: root.enabled ? Theme.text1 : Theme.text4
            Accessible.ignored: true
        }

        AppText {
            width: parent.width
            visible: text.length > 0
            text: root.caption
            role: TypeScale.Caption
            wrapMode: Text.Wrap
            color: root.enabled ? Theme.text2 : Theme.text4
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: !visible
        }
    }

    Item {
        id: holder

        x: root.width - width - Metrics.gapLarge
        width: childrenRect.width
        height: childrenRect.height
        anchors.verticalCenter: parent.verticalCenter
    }
}
