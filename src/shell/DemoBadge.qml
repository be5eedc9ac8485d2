import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// Says that the data is made up, and leads to the form that takes real ones.
FocusableItem {
    id: root

    implicitHeight: 47
    corner: Metrics.radiusBubble
    accessibleName: "Mode démo, connecter Jira"
    contentItem: DemoBadgeLabel {}

    background: GlassPanel {
        radius: root.corner
        shadow: "capsule"
        color: Theme.glass

        HoverFill {
            radius: root.corner
            shown: root.lit
        }
    }
}
