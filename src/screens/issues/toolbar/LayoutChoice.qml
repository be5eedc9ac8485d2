import QtQuick
import Velmora.Kit

// One of the layouts, which exposes to screen readers whether it is chosen.
ToolbarCell {
    id: root

    function tell() {
        if (!Accessible.checkable)
            Accessible.checkable = true;
        if (Accessible.checked !== on)
            Accessible.checked = Qt.binding(() => root.on);
    }

    Accessible.checkable: true
    Accessible.checked: on
    // The template overwrites these with its own state whenever a screen reader starts.
    Accessible.onCheckableChanged: tell()
    Accessible.onCheckedChanged: tell()
    Accessible.onToggleAction: activate()
}
