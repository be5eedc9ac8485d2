pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit

/// What a preview shows of a file: a picture, pages, lines, or only its symbol and size.
FocusScope {
    id: root

    required property AttachmentPreviewer previewer
    /// The address and the attachment change together.
    readonly property previewedFile shown: previewer.shown
    readonly property bool hasFile: previewer.isPreviewing
    /// The file that could not be shown last, and why.
    property string problemID
    property string problemText
    readonly property string problem: hasFile && problemID === shown.file.id ? problemText : ""
    readonly property bool hasContent: hasFile && problem.length === 0

    function tell(text: string) {
        problemText = text;
        problemID = shown.file.id;
    }

    When {
        shown: root.hasContent && root.shown.file.previewsAsPicture

        PicturePane {
            width: root.width
            height: root.height
            focus: true
            store: root.previewer.store
            url: root.shown.url
            name: root.shown.file.name
            onFailed: text => root.tell(text)
        }
    }

    Repeater {
        model: root.hasContent && root.shown.file.previewsAsText ? [root.shown.url] : []

        TextPane {
            required property url modelData

            width: root.width
            height: root.height
            focus: true
            url: modelData
            onFailed: text => root.tell(text)
        }
    }

    Repeater {
        model: root.hasContent && root.shown.file.previewsAsPdf ? [root.shown.url] : []

        PdfPane {
            required property url modelData

            width: root.width
            height: root.height
            focus: true
            url: modelData
            onFailed: text => root.tell(text)
        }
    }

    When {
        shown: root.hasFile && (root.problem.length > 0 || root.shown.file.previewsAsFacts)

        FactsPane {
            width: root.width
            height: root.height
            focus: true
            file: root.shown.file
            problem: root.problem
            onOpenRequested: root.previewer.open(root.shown.file)
        }
    }
}
