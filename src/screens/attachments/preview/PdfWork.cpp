#include "screens/attachments/preview/PdfWork.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString problemOf(QPdfDocument::Error error)
{
    switch (error) {
    case QPdfDocument::Error::None:
        return {};
    case QPdfDocument::Error::FileNotFound:
        return u"Le fichier n'est plus là."_s;
    case QPdfDocument::Error::IncorrectPassword:
    case QPdfDocument::Error::UnsupportedSecurityScheme:
        return u"Ce PDF est protégé par un mot de passe."_s;
    default:
        return u"Ce PDF est endommagé."_s;
    }
}

} // namespace

PdfFile PdfFile::read(const QString &path, QThread *home)
{
    PdfFile file{.document = std::make_unique<QPdfDocument>(), .pages = {}, .problem = {}};
    // A pipe would block.
    const auto error =
        QFileInfo(path).isFile() ? file.document->load(path) : QPdfDocument::Error::FileNotFound;
    file.problem = problemOf(error);
    const int count = std::min(file.document->pageCount(), MaximumPdfPages);
    for (int page = 0; page < count; ++page)
        file.pages += file.document->pagePointSize(page);
    if (file.problem.isEmpty() && count == 0)
        file.problem = problemOf(QPdfDocument::Error::InvalidFileFormat);
    file.document->moveToThread(home);
    return file;
}

PdfWork *PdfWork::of(PdfFile file)
{
    return std::unique_ptr<PdfWork>(new PdfWork(std::move(file))).release();
}

PdfWork::PdfWork(PdfFile file) : m_file(std::move(file))
{
    m_renderer.setRenderMode(QPdfPageRenderer::RenderMode::MultiThreaded);
    m_renderer.setDocument(m_file.document.get());
    connect(&m_renderer, &QPdfPageRenderer::pageRendered, this,
            [this](int, QSize, const QImage &image, auto, quint64 order) { finish(order, image); });
}

quint64 PdfWork::draw(int page, QSize pixels)
{
    ++m_pending;
    return m_renderer.requestPage(page, pixels);
}

void PdfWork::leave()
{
    m_isLeft = true;
    if (m_pending == 0)
        deleteLater();
}

void PdfWork::finish(quint64 order, const QImage &image)
{
    --m_pending;
    Q_EMIT drawn(order, image);
    if (m_isLeft)
        leave();
}
