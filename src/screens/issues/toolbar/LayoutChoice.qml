import QtQuick
import Velmora.Kit

// One of the layouts, told as chosen or not.
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
    // The template writes its own state over these whenever a screen reader starts.
    Accessible.onCheckableChanged: tell()
    Accessible.onCheckedChanged: tell()
}
