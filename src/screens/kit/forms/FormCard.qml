pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A group of form rows on a card, with lines between them. Its children are stacked. `title` stands above the card and
/// `footnote` below it, if they are set.
Item {
    id: root

    property string title
    property string footnote
    default property alias rows: stack.data

    width: parent ? parent.width : 0
    implicitHeight: foot.visible ? foot.y + foot.height : card.y + card.height
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    AppText {
        x: Metrics.gapTiny
        visible: root.title.length > 0
        text: root.title
        weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
        Accessible.ignored: !visible
    }

    Rectangle {
        id: card

        y: root.title.length > 0 ? 26 : 0
        width: root.width
        height: stack.height
        radius: Metrics.radiusBubble
        color: Theme.card

        GlassFrame {
            anchors.fill: parent
            dark: Theme.dark
            radius: card.radius
            hairline: Theme.hairline
            shadow: "none"
        }

        Column {
            id: stack

            width: parent.width
        }

        // A line above every visible row except the first.
        Repeater {
            model: stack.children.length

            Hairline {
                required property int index
                readonly property Item row: stack.children[index]

                x: Metrics.gapLarge
                y: row ? row.y : 0
                width: card.width - 2 * x
                visible: row !== null && row.visible && row.y > 0
                color: Theme.divider
            }
        }
    }

    AppText {
        id: foot

        x: Metrics.gapTiny
        y: card.y + card.height + Metrics.gap
        width: root.width - 2 * x
        visible: text.length > 0
        text: root.footnote
        role: TypeScale.Caption
        wrapMode: Text.Wrap
        color: Theme.text2
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.ignored: !visible
    }
}
