import QtQuick
import Velmora.Kit
import Velmora.Theme
import Velmora.UpdateScreens

// The card at the foot of the sidebar that offers to download or to install a release. It takes no room in the other
// states. While a release is downloaded it cannot be pressed.
FocusableItem {
    id: root

    required property UpdateScreens screens

    readonly property bool isReady: screens.offersInstall

    visible: screens.hasBadge
    enabled: visible && screens.badge.symbol !== ""
    implicitHeight: visible ? 47 : 0
    corner: Metrics.radiusBubble
    accessibleName: screens.badge.title + ", " + screens.badge.subtitle
    hint: isReady ? screens.updater.plainNotes : ""
    onClicked: screens.pressBadge()

    contentItem: UpdateBadgeLabel {
        label: root.screens.badge
        isReady: root.isReady
    }

    background: GlassPanel {
        radius: root.corner
        shadow: "capsule"
        color: root.isReady ? Qt.tint(Theme.glass, Theme.accentAt(0.25)) : Theme.glass

        HoverFill {
            radius: root.corner
            shown: root.lit
        }
    }
}
