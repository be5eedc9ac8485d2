#include "platform/decoding/helper/PdfReader.h"

#include <algorithm>

namespace {

DecodingStatus statusOf(const QPdfDocument &document)
{
    switch (document.error()) {
    case QPdfDocument::Error::None:
        return document.pageCount() > 0 ? DecodingStatus::Done : DecodingStatus::Unreadable;
    case QPdfDocument::Error::IncorrectPassword:
    case QPdfDocument::Error::UnsupportedSecurityScheme:
        return DecodingStatus::Protected;
    default:
        return DecodingStatus::Unreadable;
    }
}

} // namespace

PdfReader::PdfReader(const QByteArray &bytes) : m_bytes(bytes)
{
    m_buffer.setBuffer(&m_bytes);
    m_buffer.open(QIODevice::ReadOnly);
    m_document.load(&m_buffer);
    m_status = statusOf(m_document);
}

QList<QSizeF> PdfReader::pages() const
{
    QList<QSizeF> sizes;
    const int count = std::min(pageCount(), MaximumDecodedPages);
    for (int page = 0; page < count; ++page)
        sizes += m_document.pagePointSize(page);
    return sizes;
}

QImage PdfReader::page(int index, QSize pixels)
{
    if (m_status != DecodingStatus::Done || index >= pageCount())
        return {};
    return m_document.render(index, pixels);
}
