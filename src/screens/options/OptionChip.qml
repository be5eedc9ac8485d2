pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Options

/// A chip that opens the list of a source of options in a popover.
GlassChip {
    id: root

    required property OptionSource source
    required property string placeholder

    When {
        shown: root.isPresented

        OptionListView {
            source: root.source
            placeholder: root.placeholder
            width: root.popoverWidth
            onDone: root.dismiss()
        }
    }
}
