import QtQuick
import Velmora.Kit

// A layout of the issues. It is created when it is first shown and kept from then on, so that switching back is fast.
// The store updates only the visible layout.
LatePart {
    id: root

    required property bool inSight
    // The other layout, from which this one takes over the keyboard focus.
    required property Item other

    property bool isKept: false

    function takeOver() {
        isKept = true;
        focus = focus || other.focus;
    }

    shown: isKept
    visible: inSight
    onInSightChanged: if (inSight) takeOver()
}
