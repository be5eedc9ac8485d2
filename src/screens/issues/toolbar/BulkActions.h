#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// "1 sélectionné", "2 sélectionnés".
QString selectedCountText(int count);

/// The text and the commands of the selection bar.
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

    // Each of these opens a picker for the checked issues.
    Q_INVOKABLE void pickStatus() { pick(PickerKind::Status); }
    Q_INVOKABLE void pickPriority() { pick(PickerKind::Priority); }
    Q_INVOKABLE void pickAssignee() { pick(PickerKind::Assignee); }
    Q_INVOKABLE void pickLabels() { pick(PickerKind::Labels); }
    Q_INVOKABLE void copyKeys();
    /// Unchecks all issues.
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
