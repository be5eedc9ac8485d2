import QtQuick
import Velmora.Model
import Velmora.Theme
import Velmora.Kit

/// The disc of a status, which fills as the work progresses.
DrawnIcon {
    id: root

    required property issueStatus status
    property real size: 14

    side: size
    source: IconAddresses.status(status, size, Theme.done)
    Accessible.name: status.displayName
}
