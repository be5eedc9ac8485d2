import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A title with a chevron that points down while the associated content is shown. A press toggles `expanded`, and the
/// right and left keys set it.
FocusableItem {
    id: root

    property bool expanded: false

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Metrics.filterChipHeight
    leftPadding: 6
    rightPadding: 8
    accessibleName: text
    Accessible.description: expanded ? "Déplié" : "Replié"
    Keys.onRightPressed: expanded = true
    Keys.onLeftPressed: expanded = false
    onClicked: expanded = !expanded

    contentItem: DisclosureLabel {
        text: root.text
        expanded: root.expanded
        ink: root.enabled ? Theme.text1 : Theme.text4
    }

    background: HoverFill {
        radius: root.corner
        shown: root.lit
        fill: root.down ? Theme.openFill : Theme.hoverFill
    }
}
