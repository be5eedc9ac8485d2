import QtQuick
import Velmora.Kit
import Velmora.Theme

/// The surface of a popover, as high as its content.
GlassPanel {
    id: root

    default property alias content: holder.data

    width: 290
    height: holder.height
    radius: Metrics.radiusPopover
    color: Theme.elevatedGlass
    shadow: "popover"

    Item {
        id: holder

        width: parent.width
        height: childrenRect.height
    }
}
