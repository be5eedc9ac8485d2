pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Documents
import Velmora.Gallery
import Velmora.Theme

/// A description at size 14 and a comment at size 13, with every kind of block and mark.
Item {
    id: root

    implicitHeight: Math.max(description.implicitHeight, comment.implicitHeight + 60)

    ADFContentView {
        id: description

        width: 430
        height: implicitHeight
        name: "Description"
        node: SampleDocuments.description
        currentUserID: "u-me"
        localeName: "fr_FR"
        timeZone: "Europe/Paris"
    }

    Rectangle {
        x: 470
        width: 430
        height: comment.implicitHeight + 24
        radius: Metrics.radiusBubble
        color: Theme.bubble

        ADFContentView {
            id: comment

            x: 14
            y: 12
            width: parent.width - 28
            height: implicitHeight
            name: "Commentaire"
            node: SampleDocuments.comment
            fontSize: 13
            spacing: 6
            localeName: "fr_FR"
            timeZone: "Europe/Paris"
            mediaDelegate: Component {
                Rectangle {
                    id: picture

                    required property mediaBlock block

                    implicitHeight: 90
                    radius: Metrics.radiusPanel
                    color: Theme.hoverFill

                    Text {
                        anchors.centerIn: parent
                        text: picture.block.fileNames[0]
                        color: Theme.text2
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
