#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// "1 sélectionné", "2 sélectionnés".
QString selectedCountText(int count);

/// What the selection bar says and does.
class BulkActions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed FINAL)
    /// While nothing is checked, what it said last: the bar may be on its way out.
    Q_PROPERTY(QString countText READ countText NOTIFY changed FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    bool isShown() const { return m_store && m_store->isSelecting(); }
    const QString &countText() const { return m_countText; }

    // Each opens its picker for the checked issues.
    Q_INVOKABLE void pickStatus() { pick(PickerKind::Status); }
    Q_INVOKABLE void pickPriority() { pick(PickerKind::Priority); }
    Q_INVOKABLE void pickAssignee() { pick(PickerKind::Assignee); }
    Q_INVOKABLE void pickLabels() { pick(PickerKind::Labels); }
    Q_INVOKABLE void copyKeys();
    /// Checks nothing any more.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    void pick(PickerKind kind);
    void update();

    QPointer<AppStore> m_store;
    QString m_countText;
};
