import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// Tells the user that the data is fictitious, and opens the form for signing in to a site.
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
