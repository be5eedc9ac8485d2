pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Options

/// A chip that shows a property of some issues and opens the list that changes it. `kind` is a `Commands.PickerKind`,
/// and `keys` are the keys of the issues.
GlassChip {
    id: root

    property alias store: options.store
    property alias kind: options.kind
    property alias keys: options.keys

    PropertyOptions {
        id: options
    }

    When {
        shown: root.isPresented

        OptionListView {
            source: options
            placeholder: options.placeholder
            width: root.popoverWidth
            onDone: root.dismiss()
        }
    }
}
