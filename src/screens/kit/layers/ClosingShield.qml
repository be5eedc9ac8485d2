import QtQuick
import Velmora.Kit

/// Covers a layer that disappears gradually, so that a press on it while it fades out has no effect and does not take
/// the focus back into it.
LayerShield {
    required property Layer owner

    parent: owner.item
    anchors.fill: parent
    z: 1000
    visible: !owner.isOpen
}
