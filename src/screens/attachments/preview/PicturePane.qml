import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.State
import Velmora.Theme

/// A picture, fitted into the pane. "+", "-" and the wheel zoom, "0" fits, "1" shows the picture at its own size, and
/// Shift with the arrow keys or a drag moves it.
FocusScope {
    id: root

    required property AppStore store
    required property url url
    required property string name

    signal failed(text: string)

    function pan(event, x: real, y: real) {
        event.accepted = (event.modifiers & Qt.ShiftModifier) !== 0;
        if (event.accepted)
            canvas.panBy(x, y);
    }

    function zoom(event) {
        const factor = event.text === "+" || event.text === "=" ? 1.25 : event.text === "-" ? 0.8 : 0;
        event.accepted = factor > 0;
        if (event.accepted)
            canvas.zoomBy(factor);
    }

    Keys.onLeftPressed: event => pan(event, 80, 0)
    Keys.onRightPressed: event => pan(event, -80, 0)
    Keys.onUpPressed: event => pan(event, 0, 80)
    Keys.onDownPressed: event => pan(event, 0, -80)
    Keys.onDigit0Pressed: canvas.fit()
    Keys.onDigit1Pressed: canvas.showActualSize()
    Keys.onPressed: event => zoom(event)

    PicturePreview {
        id: picture

        store: root.store
        url: root.url
        moves: !Motion.reduced
        onChanged: if (problem.length > 0) root.failed(problem)
    }

    // A white picture is told from what surrounds it.
    Rectangle {
        anchors.fill: parent
        color: Theme.ink(0.05)
    }

    PictureCanvas {
        id: canvas

        anchors.fill: parent
        focus: true
        preview: picture
        Accessible.role: Accessible.Graphic
        Accessible.name: root.name
        Accessible.description: picture.size.width + " × " + picture.size.height + " pixels"
    }

    Spinner {
        anchors.centerIn: parent
        visible: picture.isLoading && picture.size.width <= 0
        size: 20
    }
}
