#pragma once

#include "commands/OptionItem.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Which items a list of options has, and what becomes of the one that is picked.
class OptionSource : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Only its kinds can be made")

public:
    using QObject::QObject;

    /// The items, in the order in which they are shown.
    virtual QList<OptionItem> items() const = 0;
    /// Carries out an item. Its failures are not the list's: they are told where all failures are.
    virtual void run(const OptionItem &item) = 0;
    /// Whether new values may be made; then the two below are asked.
    virtual bool canCreate() const { return false; }
    /// The title of the row that makes `candidate`.
    virtual QString createLabel(const QString &candidate) const { return candidate; }
    virtual void create(const QString &) {}

Q_SIGNALS:
    void itemsChanged();
};
