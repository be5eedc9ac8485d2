#include "screens/attachments/preview/PicturePreview.h"

#include "async/Spawn.h"
#include "async/WhileAlive.h"

using namespace Qt::StringLiterals;

void PicturePreview::setUrl(const QUrl &url)
{
    if (m_url == url)
        return;
    m_url = url;
    m_timer.reset();
    m_reader.reset();
    m_isLoading = url.isLocalFile();
    m_problem.clear();
    Q_EMIT urlChanged();
    Q_EMIT changed();
    // The picture before stays until the next one is decoded, so that nothing flickers.
    if (m_isLoading)
        spawn(load(url));
}

void PicturePreview::setMoves(bool moves)
{
    if (m_moves == moves)
        return;
    m_moves = moves;
    Q_EMIT movesChanged();
    scheduleNext();
}

QCoro::Task<> PicturePreview::load(QUrl url)
{
    const auto reader = std::make_shared<PictureReader>(url.toLocalFile());
    const PictureFrame frame = co_await whileAlive(this, PictureReader::next(reader));
    if (url != m_url)
        co_return;
    m_isLoading = false;
    m_problem = frame.problem;
    m_reader = reader;
    m_size = frame.whole;
    show(frame);
    Q_EMIT changed();
    scheduleNext();
}

void PicturePreview::scheduleNext()
{
    m_timer.reset();
    const bool hasNext = m_reader && m_frame.isAnimated && !m_frame.isNull();
    if (hasNext && m_moves && m_store)
        m_timer = m_store->clock().after(m_frame.delay, [this] { spawn(advance(m_reader)); });
}

QCoro::Task<> PicturePreview::advance(Reader reader)
{
    const PictureFrame frame = co_await whileAlive(this, PictureReader::next(reader));
    if (reader != m_reader || frame.isNull())
        co_return;
    show(frame);
    scheduleNext();
}

void PicturePreview::show(const PictureFrame &frame)
{
    m_frame = frame;
    Q_EMIT frameChanged();
}
