#pragma once

#include "screens/attachments/preview/TextReading.h"

#include <QAbstractListModel>
#include <QCoro/QCoroTask>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

/// The lines of a text file, read outside the UI thread.
class TextPreview : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    /// The file. Set once.
    Q_PROPERTY(QUrl url READ url WRITE setUrl NOTIFY urlChanged FINAL REQUIRED)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed FINAL)
    /// What is left out, for the user; empty if everything is shown.
    Q_PROPERTY(QString note READ note NOTIFY changed FINAL)
    /// Why there is no text, for the user.
    Q_PROPERTY(QString problem READ problem NOTIFY changed FINAL)
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)

public:
    enum Role { LineRole = Qt::UserRole };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    const QUrl &url() const { return m_url; }
    void setUrl(const QUrl &url);
    bool isLoading() const { return m_isLoading; }
    const QString &note() const { return m_extract.note; }
    const QString &problem() const { return m_extract.problem; }
    int count() const { return int(m_extract.lines.size()); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void urlChanged();
    void changed();

private:
    QCoro::Task<> load(QString path);

    QUrl m_url;
    TextExtract m_extract;
    bool m_isLoading = false;
};
