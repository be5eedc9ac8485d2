pragma Singleton
import QtQuick

/// Runs for a moment after a hint was shown, so that the next hint is shown without delay.
Timer {
    id: root

    readonly property bool warm: running

    interval: 500
}
