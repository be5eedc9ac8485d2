#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// What a dragged issue carries, by media type: the key as plain text and, where the issue has an address, a titled link,
/// so that it lands well in mail and documents.
QVariantMap dragContent(const Issue &issue, const std::optional<QUrl> &address);

/// The issue that a drag carries out of its row or card.
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

    /// Takes up an issue; false for one that is not known.
    Q_INVOKABLE bool take(const QString &key);

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    QPointer<AppStore> m_store;
    Issue m_issue;
    QVariantMap m_content;
};
