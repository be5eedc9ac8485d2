pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// The beginning of a text file, with numbered lines.
FocusScope {
    id: root

    required property url url
    readonly property real numberWidth: digits.advanceWidth + 28

    signal failed(text: string)

    TextPreview {
        id: content

        url: root.url
        onChanged: if (problem.length > 0) root.failed(problem)
    }

    TextMetrics {
        id: digits

        font: TypeScale.font(TypeScale.Code)
        text: "0".repeat(Math.max(3, content.count.toString().length))
    }

    ListView {
        id: list

        anchors.top: parent.top
        anchors.bottom: note.top
        width: parent.width
        clip: true
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        topMargin: Metrics.gapMedium
        bottomMargin: Metrics.gapMedium
        model: content
        Keys.onUpPressed: scrolling.scrollBy(-1)
        Keys.onDownPressed: scrolling.scrollBy(1)
        Accessible.role: Accessible.List
        Accessible.name: "Contenu du fichier"

        delegate: TextLine {
            width: list.width
            numberWidth: root.numberWidth
        }
    }

    Scrolling {
        id: scrolling

        view: list
        ground: Theme.content
    }

    PreviewNote {
        id: note

        anchors.bottom: parent.bottom
        width: parent.width
        text: content.note
    }

    Spinner {
        anchors.centerIn: parent
        visible: content.isLoading
        size: 20
    }
}
