#pragma once

#include "screens/options/OptionIconValue.h"

#include <QColor>
#include <QSize>
#include <QUrl>

/// The drawn pictures of option icons, except the icons of people and labels, which are not drawn pictures.
class OptionIconAddresses : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The size of the picture in logical pixels. Empty without a picture.
    Q_INVOKABLE QSize size(const OptionIconValue &icon) const;
    /// The address of the picture, in the colour that `ink` gives for the icon. Empty without a picture.
    Q_INVOKABLE QUrl source(const OptionIconValue &icon, const QColor &ink) const;
    /// The text for screen readers. Empty for a decorative symbol.
    Q_INVOKABLE QString meaning(const OptionIconValue &icon) const;
};
