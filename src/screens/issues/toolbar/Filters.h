#pragma once

#include "screens/issues/toolbar/FilterMenus.h"
#include "state/AppStore.h"

#include <QPointer>

/// The active filters, as screens show and change them.
class Filters : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// One chip for each non-empty set. While no filter is active, the chips keep their last value, because the bar that
    /// shows them may still be closing.
    Q_PROPERTY(QList<FilterChip> chips READ chips NOTIFY changed FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QList<FilterChip> &chips() const { return m_chips; }
    bool isEmpty() const { return m_isEmpty; }

    /// The present submenus of the filter menu.
    Q_INVOKABLE QList<MenuSection> sections() const;
    /// Adds the choice to a set, or removes it if it is present. Does nothing for an unknown section.
    Q_INVOKABLE void toggle(const QString &section, const QString &choice);
    /// Clears one set.
    Q_INVOKABLE void remove(const QString &chip);
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    FilterSources sources() const;
    void update();

    QPointer<AppStore> m_store;
    QList<FilterChip> m_chips;
    bool m_isEmpty = true;
};
