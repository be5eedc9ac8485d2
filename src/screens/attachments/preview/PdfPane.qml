pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// The pages of a PDF, one below the other.
FocusScope {
    id: root

    required property url url
    readonly property real pageWidth: Math.min(width - 48, 900)

    signal failed(text: string)

    PdfPreview {
        id: pages

        url: root.url
        onChanged: if (problem.length > 0) root.failed(problem)
    }

    Rectangle {
        anchors.fill: list
        color: Theme.ink(0.05)
    }

    ListView {
        id: list

        anchors.top: parent.top
        anchors.bottom: note.top
        width: parent.width
        clip: true
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        topMargin: 16
        bottomMargin: 16
        spacing: 16
        model: pages.pageCount
        Keys.onUpPressed: scrolling.scrollBy(-1)
        Keys.onDownPressed: scrolling.scrollBy(1)
        Accessible.role: Accessible.List
        Accessible.name: "Pages"

        delegate: Item {
            id: sheet

            required property int index

            width: list.width
            height: pages.heightOf(index, root.pageWidth)
            Accessible.role: Accessible.ListItem
            Accessible.name: "Page " + (index + 1) + " sur " + pages.pageCount

            PdfPage {
                id: page

                anchors.horizontalCenter: parent.horizontalCenter
                width: root.pageWidth
                height: parent.height
                preview: pages
                page: sheet.index
            }

            Rectangle {
                anchors.fill: page
                anchors.margins: -1
                color: "transparent"
                border.width: 1
                border.color: Theme.hairline
            }

            Spinner {
                anchors.centerIn: page
                visible: !page.isDrawn && !page.hasFailed
                color: "#808080"
                size: 20
            }

            // On the white of the page in both appearances.
            AppText {
                anchors.centerIn: page
                visible: page.hasFailed && !page.isDrawn
                width: Math.min(implicitWidth, page.width - 2 * Metrics.gapSection)
                role: TypeScale.Small
                color: "#6b6b6b"
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                text: "Cette page ne peut pas être affichée."
            }
        }
    }

    Scrolling {
        id: scrolling

        view: list
        ground: Theme.content
        fadesAtTop: false
        fadesAtBottom: false
    }

    PreviewNote {
        id: note

        anchors.bottom: parent.bottom
        width: parent.width
        text: pages.note
    }

    Spinner {
        anchors.centerIn: parent
        visible: pages.isLoading
        size: 20
    }
}
