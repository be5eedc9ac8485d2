#pragma once

#include "screens/attachments/preview/PdfWork.h"

#include <QCoro/QCoroTask>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

/// The pages of a PDF file, which is read in another process.
class PdfPreview : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The file. Set once.
    Q_PROPERTY(QUrl url READ url WRITE setUrl NOTIFY urlChanged FINAL REQUIRED)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed FINAL)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY changed FINAL)
    /// What is left out, for the user; empty if all pages are shown.
    Q_PROPERTY(QString note READ note NOTIFY changed FINAL)
    /// Why there are no pages, for the user.
    Q_PROPERTY(QString problem READ problem NOTIFY changed FINAL)

public:
    using QObject::QObject;

    const QUrl &url() const { return m_url; }
    void setUrl(const QUrl &url);
    bool isLoading() const { return m_isLoading; }
    int pageCount() const { return m_work ? int(m_work->pages().size()) : 0; }
    QString note() const;
    QString problem() const { return m_work ? m_work->problem() : QString(); }
    /// Null until the file is read.
    PdfWork *work() const { return m_work.get(); }

    /// The height of a page that is `width` wide, in logical pixels. Pages of extreme shapes are cut to twenty times
    /// their width.
    Q_INVOKABLE double heightOf(int page, double width) const;

Q_SIGNALS:
    void urlChanged();
    void changed();

private:
    QCoro::Task<> load(QString path);

    QUrl m_url;
    std::unique_ptr<PdfWork> m_work;
    bool m_isLoading = false;
};
