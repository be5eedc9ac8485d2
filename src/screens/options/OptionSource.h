#pragma once

#include "commands/OptionItem.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Provides the items of a list of options and carries out the one that is picked.
class OptionSource : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Only its kinds can be made")

public:
    using QObject::QObject;

    /// The items, in the order in which they are shown.
    virtual QList<OptionItem> items() const = 0;
    /// Carries out an item. The list does not report failures: they are reported where all failures are.
    virtual void run(const OptionItem &item) = 0;
    /// Whether new values may be created. If so, the two functions below are called.
    virtual bool canCreate() const { return false; }
    /// The title of the row that creates `candidate`.
    virtual QString createLabel(const QString &candidate) const { return candidate; }
    virtual void create(const QString &) {}

Q_SIGNALS:
    void itemsChanged();
};
