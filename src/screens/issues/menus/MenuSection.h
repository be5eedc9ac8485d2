#pragma once

#include "commands/OptionAction.h"
#include "screens/options/OptionIconValue.h"

#include <QList>
#include <QtQml/qqmlregistration.h>

/// One entry of a menu that is generated from data.
class MenuChoice
{
    Q_GADGET
    QML_VALUE_TYPE(menuChoice)
    Q_PROPERTY(QString id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(bool isOn MEMBER isOn CONSTANT FINAL)
    Q_PROPERTY(bool hasIcon READ hasIcon CONSTANT FINAL)
    Q_PROPERTY(OptionIconValue icon READ iconValue CONSTANT FINAL)
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)
    Q_PROPERTY(bool startsGroup MEMBER startsGroup CONSTANT FINAL)

public:
    /// Identifies the entry within its section.
    QString id;
    QString title;
    OptionIcon icon;
    /// Shows a check mark.
    bool isOn = false;
    /// What the entry does, if the choice alone tells it.
    OptionAction run = {};
    /// The entry is preceded by a separator.
    bool startsGroup = false;

    /// The icon is drawn and not a symbol.
    bool hasIcon() const;
    OptionIconValue iconValue() const { return OptionIconValue(icon); }
    /// The name of the symbol. Empty if the entry has another icon or none.
    QString symbol() const;

    bool operator==(const MenuChoice &) const = default;
};

/// A submenu that is generated from data.
class MenuSection
{
    Q_GADGET
    QML_VALUE_TYPE(menuSection)
    Q_PROPERTY(QString id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QList<MenuChoice> choices MEMBER choices CONSTANT FINAL)

public:
    QString id;
    QString title;
    QList<MenuChoice> choices;

    bool operator==(const MenuSection &) const = default;
};
