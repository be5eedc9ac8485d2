#pragma once

#include "screens/options/PropertyOptions.h"

/// The options of a picker of a row or a card.
class RowOptions : public PropertyOptions
{
    Q_OBJECT
    QML_ELEMENT

public:
    using PropertyOptions::PropertyOptions;

    /// Selects the property that a picker of a kind (`Commands.PickerKind`) changes, and the issues it applies to: all
    /// checked issues if `key` is one of them, otherwise the issue alone. The issues stay the same, even if the checked
    /// issues change meanwhile.
    Q_INVOKABLE void aim(int kind, const QString &key);
};
