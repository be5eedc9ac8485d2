import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// The link for creating a token, and a note on where the token is stored.
Item {
    id: root

    required property string hint

    signal requested()

    implicitHeight: 18

    Item {
        x: 2
        y: 2
        width: link.width
        height: link.height
        Accessible.role: Accessible.Link
        Accessible.name: "Créer un token API"
        Accessible.focusable: true
        Accessible.focused: link.activeFocus
        Accessible.onPressAction: root.requested()

        FocusableItem {
            id: link
            height: 16
            corner: Metrics.radiusSquare
            onClicked: root.requested()
            Accessible.ignored: true

            contentItem: TokenLinkLabel {
                lit: link.lit
            }

            HoverHandler {
                cursorShape: Qt.PointingHandCursor
            }
        }
    }

    AppText {
        anchors.right: parent.right
        anchors.rightMargin: 2
        y: 2
        height: 16
        verticalAlignment: Text.AlignVCenter
        role: TypeScale.Caption
        color: Theme.text2
        text: root.hint
    }
}
