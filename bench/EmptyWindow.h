#pragma once

#include <QByteArray>

/// The baseline for all measurements of windows: a window of the size of the main window, with a rectangle of the size
/// of a row that changes its colour at each key press.
inline QByteArray emptyWindow()
{
    return R"(
import QtQuick

Window {
    width: 1320
    height: 840
    visible: true

    Rectangle {
        property bool isOn: false

        focus: true
        width: 1080
        height: 38
        color: isOn ? "steelblue" : "gainsboro"
        Keys.onPressed: isOn = !isOn
    }
})";
}
