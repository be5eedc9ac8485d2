#include "screens/attachments/preview/PdfPreview.h"

#include "async/Spawn.h"
#include "async/WhileAlive.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double MaximumRatio = 20;
/// The ratio of a page without a size: that of A4.
constexpr double UsualRatio = 1.414;

} // namespace

void PdfPreview::setUrl(const QUrl &url)
{
    if (!m_url.isEmpty() || url.isEmpty())
        return;
    m_url = url;
    m_isLoading = true;
    Q_EMIT urlChanged();
    Q_EMIT changed();
    spawn(load(url.toLocalFile()));
}

QCoro::Task<> PdfPreview::load(QString path)
{
    Decoders &decoders = Decoders::shared();
    const PdfFile file = co_await whileAlive(this, PdfFile::read(path, &decoders));
    m_work = std::make_unique<PdfWork>(file, decoders);
    m_isLoading = false;
    Q_EMIT changed();
}

QString PdfPreview::note() const
{
    if (!m_work || m_work->pageCount() <= m_work->pages().size())
        return {};
    const QLocale french(QLocale::French, QLocale::France);
    return u"Seules les %1 premières pages sur %2 sont affichées."_s.arg(
        french.toString(m_work->pages().size()), french.toString(m_work->pageCount()));
}

double PdfPreview::heightOf(int page, double width) const
{
    const QSizeF size = m_work ? m_work->pages().value(page) : QSizeF();
    const double ratio = size.isEmpty() ? UsualRatio : size.height() / size.width();
    return width * std::clamp(ratio, 1 / MaximumRatio, MaximumRatio);
}
