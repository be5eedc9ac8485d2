import QtQuick

/// A part of a screen in a QML file of its own, which is loaded when the part is first shown, so that unused parts do
/// not slow down the start. Handle `wanted` by calling `setSource` with the properties of the part. A part that is no
/// longer shown is destroyed, or hidden if it is kept.
Loader {
    id: root

    required property bool shown
    /// Showing the part again must not take the time of creating it. The part resets itself when it is hidden.
    property bool isKept: false

    signal wanted()

    function follow() {
        if (root.shown && root.status === Loader.Null)
            root.wanted();
        else if (!root.shown && !root.isKept)
            root.source = "";
    }

    visible: shown
    onShownChanged: follow()
    Component.onCompleted: follow()
}
