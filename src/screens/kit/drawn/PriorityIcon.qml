import QtQuick
import Velmora.Model
import Velmora.Theme
import Velmora.Kit

/// The bars of a priority (`Model.PriorityLevel`). `tint` is the colour of bars and dashes. The urgent icon has its own
/// colour.
DrawnIcon {
    id: root

    required property int level
    property real size: 14
    property color tint: level === Model.PriorityLevel.None ? Theme.neutral : Theme.text1

    side: size
    source: IconAddresses.priority(level, size, tint)
    Accessible.name: IconAddresses.priorityName(level)
}
