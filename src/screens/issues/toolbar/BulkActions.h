#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// "sélectionné", and "sélectionnés" for more than one.
QString selectedWord(int count);

/// The text of the selection bar, and the command that closes it.
class BulkActions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed FINAL)
    /// The number of checked issues, the word after it, and both together. While nothing is checked they keep their
    /// last values, because the bar may still be fading out.
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)
    Q_PROPERTY(QString countWord READ countWord NOTIFY changed FINAL)
    Q_PROPERTY(QString countText READ countText NOTIFY changed FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    bool isShown() const { return m_store && m_store->isSelecting(); }
    int count() const { return m_count; }
    QString countWord() const { return selectedWord(m_count); }
    QString countText() const;

    /// Unchecks all issues.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    void update();

    QPointer<AppStore> m_store;
    int m_count = 0;
};
