import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// The first line of a comment: its author, its time and its tag. Where space ends, the tag takes at most half of the
// line, and the name is elided.
Item {
    id: root

    required property shownComment comment
    readonly property int gap: 7

    implicitHeight: 24

    AppText {
        id: author
        width: Math.max(0, Math.min(implicitWidth, tag.x - age.width - 2 * root.gap))
        anchors.verticalCenter: parent.verticalCenter
        weight: Font.DemiBold
        text: root.comment.name
        Accessible.ignored: true
    }

    AppText {
        id: age
        x: author.width + root.gap
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        tabular: true
        color: Theme.text3
        text: root.comment.age
        Accessible.ignored: true

        HoverHandler {
            id: pointer
        }

        HintTip {
            shown: pointer.hovered
            text: root.comment.date
        }
    }

    VisibilityTag {
        id: tag
        x: root.width - width
        width: implicitWidth
        height: implicitHeight
        anchors.verticalCenter: parent.verticalCenter
        comment: root.comment
        limit: Math.floor(root.width / 2)
    }
}
