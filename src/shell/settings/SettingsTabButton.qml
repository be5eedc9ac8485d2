import QtQuick
import Velmora.Kit
import Velmora.Shell

// A tab of the settings.
IconTab {
    id: root

    required property int index
    required property settingsTab modelData
    // The position of the chosen tab. Negative if no known one is chosen; the Tab key then reaches the first.
    required property int current

    text: modelData.title
    symbol: modelData.symbol
    on: index === current
    isTabStop: index === Math.max(0, current)
}
