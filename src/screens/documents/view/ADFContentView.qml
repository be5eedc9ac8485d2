pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Documents
import Velmora.Kit

/// A description, a comment or any other document. It is as high as `implicitHeight` says and shows only what is in
/// sight, so a long document costs no more than a short one. Connect `linkActivated` to open links, `revealRequested` to
/// scroll to what has the focus, and `shifted` to a view that scrolls.
DocumentReader {
    id: root

    style: DocumentLook
    Accessible.role: Accessible.Document
    Accessible.name: name

    When {
        shown: root.linkHint.length > 0

        Item {
            x: root.hoveredBox.x
            y: root.hoveredBox.y
            width: root.hoveredBox.width
            height: root.hoveredBox.height

            HintTip {
                shown: true
                text: root.linkHint
            }
        }
    }
}
