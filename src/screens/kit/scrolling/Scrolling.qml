import QtQuick
import Velmora.Kit
import Velmora.Theme

/// Everything that scrolls a Flickable: the wheel, keys, touches, the scroll bar, and fades at the edges beyond which
/// there is more. Place it above the view, as its sibling. `ground` is the opaque colour behind the content.
Item {
    id: root

    required property Flickable view
    required property color ground
    /// The view scrolls sideways only. It has no fades.
    property alias isHorizontal: control.isHorizontal
    property alias passesOn: control.passesOn
    property alias thickness: bar.thickness
    /// Items of the view move without a scroll, for instance after a change of their order.
    property alias isAnimating: repainted.isAnimating
    property bool fadesAtTop: true
    property bool fadesAtBottom: true

    /// The part of the content above what is visible, from 0 to 1.
    readonly property real share: isHorizontal ? view.visibleArea.xPosition : view.visibleArea.yPosition
    readonly property real hiddenAbove: isHorizontal ? 0 : view.contentY - view.originY
    readonly property real hiddenBelow: isHorizontal ? 0
        : view.originY + view.contentHeight - view.contentY - view.height

    /// The user scrolls; emitted with each step.
    signal scrolled()

    /// Scrolls by notches of the wheel, towards the end for positive ones.
    function scrollBy(notches: real) {
        control.scrollBy(notches);
    }

    anchors.fill: view
    visible: view.visible

    ScrollControl {
        id: control
        view: root.view
        isReduced: Motion.reduced
        onScrolled: {
            bar.flash();
            root.scrolled();
        }
    }

    RepaintArea {
        id: repainted

        anchors.fill: parent
        view: root.view
    }

    ScrollFade {
        width: parent.width
        ground: root.ground
        isAtTop: true
        hidden: root.fadesAtTop ? root.hiddenAbove : 0
    }

    ScrollFade {
        anchors.bottom: parent.bottom
        width: parent.width
        ground: root.ground
        hidden: root.fadesAtBottom ? root.hiddenBelow : 0
    }

    OverlayScrollBar {
        id: bar

        anchors.right: parent.right
        anchors.bottom: parent.bottom
        width: root.isHorizontal ? parent.width : implicitWidth
        height: root.isHorizontal ? implicitHeight : parent.height
        orientation: root.isHorizontal ? Qt.Horizontal : Qt.Vertical
        scrolls: root.view.moving
        size: root.isHorizontal ? root.view.visibleArea.widthRatio : root.view.visibleArea.heightRatio
        position: root.share
        // A list that estimates its length moves the held bar by itself.
        onDragged: share => {
            if (share !== root.share)
                control.scrollTo(share);
        }
    }
}
