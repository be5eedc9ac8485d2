import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// A file inside a text that is not a picture. A press previews it.
FocusableItem {
    id: root

    required property attachmentFile file

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: 26
    leftPadding: Metrics.gapSmall
    rightPadding: Metrics.gapSmall
    accessibleName: file.name
    hint: file.inlineHint

    contentItem: AppText {
        leftPadding: 18
        role: TypeScale.Small
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideMiddle
        color: Theme.accentText
        text: root.file.name
        Accessible.ignored: true

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "paperclip"
            size: 12
            color: Theme.accentText
        }
    }

    background: HoverFill {
        radius: root.corner
        shown: root.lit
    }
}
