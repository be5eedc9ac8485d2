import QtQuick
import Velmora.Theme
import Velmora.Kit

/// A floating surface: fill, hairline, light upper edge and shadow. Panes use `shadow: "pane"`, popovers "popover" with
/// `Theme.elevatedGlass`, sheets "sheet" with `Theme.elevated`, and toasts and bars "bar" with `Theme.glassStrong`.
Rectangle {
    id: root

    property string shadow: "pane"
    property alias hairline: frame.hairline
    property alias edgeLight: frame.edgeLight

    color: Theme.pane
    radius: Metrics.radiusPane

    GlassFrame {
        id: frame

        anchors.fill: parent
        radius: root.radius
        dark: Theme.dark
        hairline: Theme.hairline
        edgeLight: Theme.edgeLight
        shadow: root.shadow
    }
}
