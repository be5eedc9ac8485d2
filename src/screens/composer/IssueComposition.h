#pragma once

#include "screens/composer/Composition.h"
#include "state/AppStore.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// A comment on an issue of the store. A posted comment is confirmed by a toast.
class IssueComposition : public Composition
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// The issue. Another key begins an empty draft.
    Q_PROPERTY(QString issueKey READ issueKey WRITE setIssueKey NOTIFY issueChanged FINAL REQUIRED)
    Q_PROPERTY(
        QString projectKey READ projectKey WRITE setProjectKey NOTIFY issueChanged FINAL REQUIRED)

public:
    using Composition::Composition;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QString &issueKey() const { return m_issueKey; }
    void setIssueKey(const QString &key);
    const QString &projectKey() const { return m_projectKey; }
    void setProjectKey(const QString &key);

Q_SIGNALS:
    void storeChanged();
    void issueChanged();

protected:
    Clock &clock() override { return m_store->clock(); }
    QList<JiraUser> candidates() const override;
    QCoro::Task<QList<JiraUser>> search(QString words, std::stop_token stop) override;
    QCoro::Task<bool> post(OutgoingComment comment) override;
    QCoro::Task<QList<Attachment>> upload(QList<QUrl> files) override;

private:
    void begin();

    QPointer<AppStore> m_store;
    QString m_issueKey;
    QString m_projectKey;
};
