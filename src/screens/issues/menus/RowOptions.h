#pragma once

#include "screens/options/PropertyOptions.h"

/// The options of a picker in a row or a card.
class RowOptions : public PropertyOptions
{
    Q_OBJECT
    QML_ELEMENT

public:
    using PropertyOptions::PropertyOptions;

    /// Offers what a picker of a kind (`PropertyOptions.Kind`) at the row of an issue changes: all checked issues if it is
    /// one of them, else it alone. The issues stay the same, whatever is checked meanwhile.
    Q_INVOKABLE void aim(int kind, const QString &key);
};
