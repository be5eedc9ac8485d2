#pragma once

#include "screens/options/OptionIconValue.h"

#include <QColor>
#include <QSize>
#include <QUrl>

/// The drawn pictures of the icons of options, but for people and labels, whose icons are no such pictures.
class OptionPictures : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The picture is a square of so many logical pixels; of none without a picture.
    Q_INVOKABLE QSize size(const OptionIconValue &icon) const;
    /// Where the picture is to be had, in the colour that `ink` gives for the icon; empty without one.
    Q_INVOKABLE QUrl source(const OptionIconValue &icon, const QColor &ink) const;
    /// What it says to screen readers; empty for a mere symbol.
    Q_INVOKABLE QString meaning(const OptionIconValue &icon) const;
};
