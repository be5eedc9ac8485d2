#include "screens/attachments/preview/PicturePreview.h"

#include "async/OffThread.h"
#include "async/Spawn.h"
#include "async/WhileAlive.h"

using namespace Qt::StringLiterals;

/// What is known of a file after its first frame.
struct PicturePreview::Opened
{
    Reader reader;
    PictureFrame frame;
    QString problem;

    static Opened file(const QString &path)
    {
        Opened opened{std::make_shared<PictureReader>(path), {}, {}};
        opened.problem = opened.reader->problem();
        if (!opened.problem.isEmpty())
            return opened;
        opened.frame = opened.reader->next();
        if (opened.frame.isNull())
            opened.problem = u"Cette image est endommagée ou trop grande pour être affichée."_s;
        return opened;
    }
};

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
    auto open = [path = url.toLocalFile()] { return Opened::file(path); };
    const Opened opened = co_await whileAlive(this, offThread(std::move(open)));
    if (url != m_url)
        co_return;
    m_isLoading = false;
    m_problem = opened.problem;
    m_reader = opened.reader;
    m_size = opened.reader->size();
    show(opened.frame);
    Q_EMIT changed();
    scheduleNext();
}

void PicturePreview::scheduleNext()
{
    m_timer.reset();
    const bool isAnimated = m_reader && m_reader->isAnimated() && !m_frame.isNull();
    if (isAnimated && m_moves && m_store)
        m_timer = m_store->clock().after(m_frame.delay, [this] { spawn(advance(m_reader)); });
}

QCoro::Task<> PicturePreview::advance(Reader reader)
{
    // The timer is destroyed by the next one. Until then, the reader is used by the other thread only.
    auto read = [reader] { return reader->next(); };
    const PictureFrame frame = co_await whileAlive(this, offThread(std::move(read)));
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
