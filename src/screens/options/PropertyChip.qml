import QtQuick
import Velmora.Options

/// A chip that shows a property of some issues and opens the list that changes it. `kind` is a `Commands.PickerKind`,
/// and `keys` are the keys of the issues.
OptionChip {
    id: root

    property alias store: options.store
    property alias kind: options.kind
    property alias keys: options.keys

    source: options
    placeholder: options.placeholder

    PropertyOptions {
        id: options
    }
}
