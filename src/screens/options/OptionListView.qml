pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

/// A searchable list of options: a search field, which has the focus, above the matching rows. The list receives key
/// presses before the field does. `done` asks the host to close it.
FocusScope {
    id: root

    required property OptionSource source
    required property string placeholder

    signal done()

    implicitWidth: 290
    implicitHeight: field.height + rows.height
    focus: true
    Component.onCompleted: field.forceActiveFocus(Qt.PopupFocusReason)

    OptionList {
        id: list

        source: root.source
        onDone: root.done()
    }

    KeyMonitorModifier {
        handler: list
    }

    InputField {
        id: field

        width: parent.width
        height: Metrics.optionSearchHeight
        leftPadding: 14
        rightPadding: 14
        focus: true
        background: null
        name: root.placeholder
        placeholderText: root.placeholder
        text: list.query
        onTextEdited: list.query = text
        spoken: list.spoken
    }

    Hairline {
        anchors.bottom: field.bottom
        width: parent.width
        color: Theme.divider
    }

    OptionRows {
        id: rows

        anchors.top: field.bottom
        width: parent.width
        list: list
        name: root.placeholder
    }
}
