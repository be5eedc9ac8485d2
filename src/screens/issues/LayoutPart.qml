import QtQuick
import Velmora.Kit

// A layout of the issues. It is made when it is first seen and kept from then on, so that going back to it is quick; the
// store feeds only the layout in sight.
LatePart {
    id: root

    required property bool inSight
    // The one that this takes the keyboard over from.
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
