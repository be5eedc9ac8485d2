#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPdfDocument>
#include <QPdfPageRenderer>
#include <QSizeF>
#include <QString>

#include <memory>

/// A PDF file and the thread that draws its pages. A page may take long to draw and cannot be interrupted, so the object
/// outlives its user until the last page under way is done, and nobody waits for it.
class PdfWork : public QObject
{
    Q_OBJECT

public:
    /// The user must call `leave` instead of destroying it.
    static PdfWork *open(const QString &path);

    /// Why there are no pages, for the user; empty if there are.
    const QString &problem() const { return m_problem; }
    /// The sizes of the shown pages, in points.
    const QList<QSizeF> &pages() const { return m_pages; }
    /// The number of pages in the file.
    int pageCount() const { return m_document.pageCount(); }
    /// Draws a page outside the UI thread, and emits `drawn`. Returns the number of the order.
    quint64 draw(int page, QSize pixels);
    /// Nobody uses it any more.
    void leave();

Q_SIGNALS:
    void drawn(quint64 order, const QImage &image);

private:
    PdfWork();

    void finish(quint64 order, const QImage &image);

    QPdfDocument m_document;
    // Declared after the document, because its thread uses it.
    QPdfPageRenderer m_renderer;
    QList<QSizeF> m_pages;
    QString m_problem;
    int m_pending = 0;
    bool m_isLeft = false;
};

/// The maximum number of pages that are shown.
constexpr int MaximumPdfPages = 1000;
