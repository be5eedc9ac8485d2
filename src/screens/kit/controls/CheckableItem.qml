import QtQuick
import Velmora.Kit

/// The base of the controls that are on or off. To screen readers they offer to be toggled, which other buttons do not.
FocusableItem {
    id: root

    checkable: true
    Accessible.role: Accessible.CheckBox
    Accessible.onToggleAction: activate()
}
