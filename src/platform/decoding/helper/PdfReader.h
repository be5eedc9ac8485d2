#pragma once

#include "platform/decoding/DecodingProtocol.h"

#include <QBuffer>
#include <QImage>
#include <QPdfDocument>

/// Reads a PDF.
class PdfReader
{
public:
    /// The bytes must outlive this object.
    explicit PdfReader(const QByteArray &bytes);

    /// `Done` if there are pages.
    DecodingStatus status() const { return m_status; }
    int pageCount() const { return m_document.pageCount(); }
    /// The sizes of the first `MaximumDecodedPages` pages, in points.
    QList<QSizeF> pages() const;
    /// Draws a page, transparent where nothing is drawn. Null if there is no such page.
    QImage page(int index, QSize pixels);

private:
    QByteArray m_bytes;
    QBuffer m_buffer;
    QPdfDocument m_document;
    DecodingStatus m_status = DecodingStatus::Unreadable;
};
