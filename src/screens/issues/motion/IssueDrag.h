#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// The content of a dragged issue by media type: the key as plain text and, if the issue has an address, a link with a
/// title, which mail clients and word processors insert as such.
QVariantMap dragContent(const Issue &issue, const std::optional<QUrl> &address);

/// The issue that is dragged out of its row or card.
class IssueDrag : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store MEMBER m_store NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(Issue issue READ issue NOTIFY changed FINAL)
    Q_PROPERTY(QVariantMap content READ content NOTIFY changed FINAL)

public:
    using QObject::QObject;

    const Issue &issue() const { return m_issue; }
    const QVariantMap &content() const { return m_content; }

    /// Selects the issue to drag. False if the issue is not known.
    Q_INVOKABLE bool take(const QString &key);

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    QPointer<AppStore> m_store;
    Issue m_issue;
    QVariantMap m_content;
};
