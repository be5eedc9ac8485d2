import QtQuick

/// A part of a screen in a QML file of its own, which is loaded when the part is first shown, so that unused parts do
/// not slow down the start. Handle `wanted` by calling `setSource` with the properties of the part. A part that is no
/// longer shown is destroyed, or hidden if it is kept.
Loader {
    id: root

    required property bool shown
    /// Showing the part again must not take the time of creating it. The part resets itself when it is hidden.
    property bool isKept: false
    /// Create the part although it is not shown yet, a little at a time between events, so that showing it for the first
    /// time does not take the time of creating it either. Only for a part that is kept.
    property bool isAhead: false

    signal wanted()

    function follow() {
        if ((root.shown || root.isAhead) && root.status !== Loader.Ready)
            root.load(!root.shown);
        else if (!root.shown && !root.isKept)
            root.source = "";
    }

    // A part that is shown while it is created in steps is created again, at once. A loader that is made synchronous
    // while it still reads the file would create the part without the properties passed to `setSource`.
    function load(inSteps: bool) {
        root.source = "";
        root.asynchronous = inSteps;
        root.wanted();
    }

    visible: shown
    onShownChanged: follow()
    onIsAheadChanged: follow()
    Component.onCompleted: follow()
}
