pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Documents
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The description while it is read: the document, the skeleton before it is known, or the button that adds one.
FocusScope {
    id: root

    required property AppStore store
    required property OpenIssue issue
    required property DescriptionEditing editing
    property Component mediaDelegate: null

    readonly property bool hasDocument: editing.content === DescriptionEditing.Document
    readonly property bool isMissing: editing.content === DescriptionEditing.Missing
    // The widths of the bars of the skeleton, and their height together.
    readonly property list<int> bars: [320, 260, 180]
    readonly property int skeletonHeight: 46

    signal linkActivated(address: string)
    signal revealRequested(box: rect)
    signal shifted(distance: real)

    /// Focuses the button that begins the editing.
    function takeFocus(reason: int) {
        if (isMissing)
            add.forceActiveFocus(reason);
        else
            edit.forceActiveFocus(reason);
    }

    implicitHeight: hasDocument ? Math.max(document.implicitHeight, edit.height)
                  : isMissing ? add.height : skeletonHeight

    HoverHandler {
        id: pointer
    }

    // Declared before the document, because Tab follows this order and the button is at the top.
    EditButton {
        id: edit

        anchors.right: parent.right
        z: 1
        visible: root.hasDocument
        isSeen: pointer.hovered
        onClicked: root.editing.begin()
    }

    ADFContentView {
        id: document

        width: parent.width
        height: implicitHeight
        visible: root.hasDocument
        name: "Description"
        node: root.editing.document
        subject: root.issue.key
        fontSize: 14
        spacing: Metrics.gapMedium
        currentUserID: root.store.me.id
        localeName: root.issue.localeName
        timeZone: root.issue.timeZone
        mediaDelegate: root.mediaDelegate
        onLinkActivated: address => root.linkActivated(address)
        onRevealRequested: box => root.revealRequested(box)
        onShifted: distance => root.shifted(distance)
    }

    FocusableItem {
        id: add

        visible: root.isMissing
        text: "Ajouter une description…"
        corner: Metrics.radiusSquare
        onClicked: root.editing.begin()

        contentItem: AppText {
            role: TypeScale.Body14
            color: add.lit ? Theme.text2 : Theme.text3
            text: add.text
            Accessible.ignored: true
        }
    }

    When {
        shown: !root.hasDocument && !root.isMissing

        SkeletonPulse {
            width: root.width
            height: root.skeletonHeight

            Column {
                spacing: Metrics.gap

                Repeater {
                    model: root.bars

                    SkeletonBar {
                        required property int modelData

                        width: Math.min(modelData, root.width)
                        radius: 4
                        color: Theme.ink(0.06)
                    }
                }
            }
        }
    }
}
