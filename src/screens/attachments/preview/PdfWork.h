#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPdfDocument>
#include <QPdfPageRenderer>
#include <QSizeF>
#include <QString>
#include <QThread>

#include <memory>

/// A PDF file, as far as it must be known before pages are drawn.
struct PdfFile
{
    std::unique_ptr<QPdfDocument> document;
    /// The sizes of the shown pages, in points.
    QList<QSizeF> pages;
    /// Why there are no pages, for the user; empty if there are.
    QString problem;

    /// Reads a file. May be called from any thread; the document then belongs to the thread `home`. It may take long,
    /// because it waits for a page that is being drawn, of whatever document.
    static PdfFile read(const QString &path, QThread *home);
};

/// A PDF file and the thread that draws its pages. A page may take long to draw and cannot be interrupted, so the object
/// outlives its user until the last page under way is done, and nobody waits for it.
class PdfWork : public QObject
{
    Q_OBJECT

public:
    /// The user must call `leave` instead of destroying it.
    static PdfWork *of(PdfFile file);

    const QString &problem() const { return m_file.problem; }
    const QList<QSizeF> &pages() const { return m_file.pages; }
    /// The number of pages in the file.
    int pageCount() const { return m_file.document->pageCount(); }
    /// Draws a page outside the UI thread, and emits `drawn`. Returns the number of the order.
    quint64 draw(int page, QSize pixels);
    /// Nobody uses it any more.
    void leave();

Q_SIGNALS:
    void drawn(quint64 order, const QImage &image);

private:
    explicit PdfWork(PdfFile file);

    void finish(quint64 order, const QImage &image);

    PdfFile m_file;
    // Declared after the document, because its thread uses it.
    QPdfPageRenderer m_renderer;
    int m_pending = 0;
    bool m_isLeft = false;
};

/// The maximum number of pages that are shown.
constexpr int MaximumPdfPages = 1000;
