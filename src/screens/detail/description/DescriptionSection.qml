pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.State

/// The description of an open issue, and its editor. `mediaDelegate`, `linkActivated`, `revealRequested` and `shifted` have
/// the same meaning as in an `ADFContentView`; the editor is also revealed. The editor grows up to `room`, the
/// height of the view that scrolls.
FocusScope {
    id: root

    required property AppStore store
    required property OpenIssue issue
    property Component mediaDelegate: null
    property real room: 480

    signal linkActivated(address: string)
    signal revealRequested(box: rect)
    signal shifted(distance: real)

    function save(reason: int) {
        description.save();
        reading.takeFocus(reason);
    }

    function cancel(reason: int) {
        description.cancel();
        reading.takeFocus(reason);
    }

    implicitHeight: parts.implicitHeight

    DescriptionEditing {
        id: description
        issue: root.issue
    }

    Column {
        id: parts
        width: parent.width

        // It is kept during editing, so that its open sections stay open.
        DescriptionReading {
            id: reading
            width: parent.width
            visible: !description.isEditing
            store: root.store
            issue: root.issue
            editing: description
            mediaDelegate: root.mediaDelegate
            onLinkActivated: address => root.linkActivated(address)
            onRevealRequested: box => root.revealRequested(box)
            onShifted: distance => root.shifted(distance)
        }

        When {
            shown: description.isEditing

            DescriptionEditor {
                width: parts.width
                editing: description
                room: root.room
                onSaved: reason => root.save(reason)
                onCancelled: reason => root.cancel(reason)
                onRevealRequested: box => root.revealRequested(box)
            }
        }
    }
}
