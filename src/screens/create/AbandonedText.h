#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The last title and description that were typed for a new issue and not sent, until the session ends.
class AbandonedText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);

    const QString &summary() const { return m_summary; }
    const QString &details() const { return m_details; }
    bool isEmpty() const { return m_summary.isEmpty() && m_details.isEmpty(); }
    /// Keeps a text in place of the one before. A text without words is not kept.
    void keep(const QString &summary, const QString &details);
    /// Forgets the text if it is still this one, because it was sent after all.
    void forget(const QString &summary, const QString &details);
    void clear();

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    QPointer<AppStore> m_store;
    QString m_summary;
    QString m_details;
};
