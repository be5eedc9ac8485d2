pragma Singleton
import QtQuick

/// Tells when the first screen has had time to load, so that parts can be created that are probably needed later.
Timer {
    id: root

    property bool hasPassed: false

    interval: 1000
    running: true
    onTriggered: hasPassed = true
}
