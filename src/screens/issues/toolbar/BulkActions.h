#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// "1 sélectionné", "2 sélectionnés".
QString selectedCountText(int count);

/// The text of the selection bar, and the command that closes it.
class BulkActions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed FINAL)
    /// The number of checked issues as text. While nothing is checked it keeps its last value, because the bar may
    /// still be fading out.
    Q_PROPERTY(QString countText READ countText NOTIFY changed FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    bool isShown() const { return m_store && m_store->isSelecting(); }
    const QString &countText() const { return m_countText; }

    /// Unchecks all issues.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    void update();

    QPointer<AppStore> m_store;
    QString m_countText;
};
