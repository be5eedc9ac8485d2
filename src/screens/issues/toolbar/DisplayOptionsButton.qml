pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State

// The toolbar button for the display options, which are shown in a popover that exists only while it is open.
ToolbarCell {
    id: root

    required property AppStore store

    property bool isOpen: false

    name: "Affichage"
    hint: "Options d'affichage"
    symbol: "slider.horizontal.3"
    on: isOpen
    onClicked: isOpen = true

    When {
        shown: root.isOpen

        Item {
            width: root.width
            height: root.height

            Popover {
                id: popover

                property bool isByKeys: false

                name: "Options d'affichage"
                alignment: PopoverPlacement.Trailing
                onAboutToShow: isByKeys = root.visualFocus
                onActiveFocusChanged: if (activeFocus && isByKeys) view.focusFirst()
                onClosed: root.isOpen = false
                Component.onCompleted: open()

                DisplayOptionsView {
                    id: view
                    width: popover.width
                    store: root.store
                }
            }
        }
    }
}
