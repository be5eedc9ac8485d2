import QtQuick

/// Holds its child only while `shown`. (A Loader of Qt 6.4 cannot create a component that is bound to its ids; a
/// repeater can.)
Repeater {
    required property bool shown

    model: shown ? 1 : 0
}
