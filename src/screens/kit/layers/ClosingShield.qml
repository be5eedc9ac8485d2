import QtQuick
import Velmora.Kit

/// Covers a layer that disappears gradually, so that a press on it while it fades out has no effect and does not take
/// the focus back into it.
LayerShield {
    id: root

    required property Layer owner

    parent: root.owner.item
    anchors.fill: parent
    z: 1000
    visible: !root.owner.isOpen
}
