#pragma once

#include "screens/issues/toolbar/FilterMenus.h"
#include "state/AppStore.h"

#include <QPointer>

/// The filters in force as screens show and change them.
class Filters : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// One for each filled set.
    Q_PROPERTY(QList<FilterChip> chips READ chips NOTIFY changed FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QList<FilterChip> &chips() const { return m_chips; }
    bool isEmpty() const { return m_chips.isEmpty(); }

    /// The submenus of the filter menu, as they are now.
    Q_INVOKABLE QList<MenuSection> sections() const;
    /// Puts the choice of a section in, or takes it out; unknown sections do nothing.
    Q_INVOKABLE void toggle(const QString &section, const QString &choice);
    /// Empties one set.
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
};
