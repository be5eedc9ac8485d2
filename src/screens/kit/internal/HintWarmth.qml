pragma Singleton
import QtQuick

/// Remembers for a moment that a hint was shown, so that the next one need not wait.
Timer {
    id: root

    readonly property bool warm: running

    interval: 500
}
