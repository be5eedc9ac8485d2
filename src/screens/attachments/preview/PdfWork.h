#pragma once

#include "platform/decoding/Decoders.h"

#include <QCoro/QCoroTask>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSizeF>
#include <QString>

/// A PDF file, as far as it must be known before pages are drawn.
struct PdfFile
{
    DecodingInput input;
    /// The sizes of the shown pages, in points. Empty for a page without a possible size.
    QList<QSizeF> pages;
    /// The number of pages in the file.
    int pageCount = 0;
    /// Why there are no pages, for the user; empty if there are.
    QString problem;

    /// Reads a file in another process. The decoders must outlive the task.
    static QCoro::Task<PdfFile> read(QString path, Decoders *decoders);
};

/// Draws the pages of a PDF file in another process.
class PdfWork : public QObject
{
    Q_OBJECT

public:
    /// The decoders must outlive this object.
    PdfWork(PdfFile file, Decoders &decoders) : m_file(std::move(file)), m_decoders(decoders) {}

    const QString &problem() const { return m_file.problem; }
    const QList<QSizeF> &pages() const { return m_file.pages; }
    /// The number of pages in the file.
    int pageCount() const { return m_file.pageCount; }
    /// Draws a page, and emits `drawn` later. Returns the number of the order.
    quint64 draw(int page, QSize pixels);

Q_SIGNALS:
    /// The image is null if the page cannot be drawn.
    void drawn(quint64 order, const QImage &image);

private:
    QCoro::Task<> finish(quint64 order, DecodingRequest request);

    const PdfFile m_file;
    Decoders &m_decoders;
    quint64 m_lastOrder = 0;
};
