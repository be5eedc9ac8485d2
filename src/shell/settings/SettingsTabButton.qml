import QtQuick
import Velmora.Kit
import Velmora.Shell

// A tab of the settings.
IconTab {
    id: root

    required property settingsTab modelData

    text: modelData.title
    symbol: modelData.symbol
}
