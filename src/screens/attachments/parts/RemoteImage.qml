import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// A picture of the site: a spinner until it is loaded, and the symbol of a picture if it cannot be. A picture that is
/// already loaded is shown at once. `crops` fills the item; otherwise the whole picture is shown. `name` is spoken; the
/// image is ignored by screen readers without it.
Item {
    id: root

    required property url address
    property bool crops: true
    property real corner: 0
    property bool hasSquareFoot: false
    property real symbolSize: 16
    property string name
    readonly property bool isLoaded: remote.isLoaded
    readonly property bool failed: remote.isMissing
    readonly property size pictureSize: picture.pictureSize

    Accessible.role: Accessible.Graphic
    Accessible.name: name
    Accessible.ignored: name.length === 0

    RemotePicture {
        id: remote

        address: root.address
    }

    PaintedPicture {
        id: picture

        anchors.fill: parent
        address: remote.isLoaded ? root.address : ""
        crops: root.crops
        corner: root.corner
        hasSquareFoot: root.hasSquareFoot
    }

    Spinner {
        anchors.centerIn: parent
        visible: !remote.isLoaded && !root.failed
        size: root.symbolSize
    }

    Symbol {
        anchors.centerIn: parent
        visible: root.failed
        name: "photo"
        size: root.symbolSize
        color: Theme.text3
    }
}
