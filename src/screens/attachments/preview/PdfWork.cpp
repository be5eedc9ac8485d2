#include "screens/attachments/preview/PdfWork.h"

#include "async/OffThread.h"
#include "async/Spawn.h"
#include "async/WhileAlive.h"

using namespace Qt::StringLiterals;

namespace {

QString problemOf(DecodingStatus status)
{
    switch (status) {
    case DecodingStatus::Done:
        return {};
    case DecodingStatus::Protected:
        return u"Ce PDF est protégé par un mot de passe."_s;
    default:
        return u"Ce PDF est endommagé."_s;
    }
}

} // namespace

QCoro::Task<PdfFile> PdfFile::read(QString path, Decoders *decoders)
{
    // A file on another machine may take long to open.
    auto open = [path] { return DecodingInput::file(path); };
    PdfFile file;
    file.input = co_await offThread(std::move(open));
    if (file.input.isNull()) {
        file.problem = u"Le fichier n'est plus là."_s;
        co_return file;
    }
    const DecodingRequest request{.kind = DecodingKind::Pages};
    const Decoded result = co_await decoders->decode(file.input, request);
    file.pages = result.pages;
    file.pageCount = result.pageCount;
    file.problem = problemOf(result.status);
    co_return file;
}

quint64 PdfWork::draw(int page, QSize pixels)
{
    const quint64 order = ++m_lastOrder;
    spawn(finish(order, {.kind = DecodingKind::Page, .index = page, .bound = pixels}));
    return order;
}

QCoro::Task<> PdfWork::finish(quint64 order, DecodingRequest request)
{
    const Decoded result = co_await whileAlive(this, m_decoders.decode(m_file.input, request));
    Q_EMIT drawn(order, result.image);
}
