#include "screens/attachments/section/FileFetches.h"

#include "async/Spawn.h"
#include "async/WhileAlive.h"

#include <coroutine>
#include <vector>

/// A fetch, and the coroutines that wait for its end.
struct FileFetches::Fetch
{
    bool isDone = false;
    std::optional<QUrl> file;
    std::vector<std::coroutine_handle<>> waiting;

    void finish(const std::optional<QUrl> &result)
    {
        isDone = true;
        file = result;
        for (const auto handle : std::exchange(waiting, {}))
            handle.resume();
    }
};

/// Waits for the end of a fetch.
struct FileFetches::End
{
    FetchPtr fetch;

    bool await_ready() const { return fetch->isDone; }
    void await_suspend(std::coroutine_handle<> handle) const { fetch->waiting.push_back(handle); }
    std::optional<QUrl> await_resume() const { return fetch->file; }
};

FileFetches &FileFetches::of(AppStore &store)
{
    auto *fetches = store.findChild<FileFetches *>({}, Qt::FindDirectChildrenOnly);
    // The store is its owner.
    return fetches ? *fetches : *std::unique_ptr<FileFetches>(new FileFetches(store)).release();
}

FileFetches::FileFetches(AppStore &store) : QObject(&store), m_store(store)
{
    connect(&store, &AppStore::sessionChanged, this, &FileFetches::endAll);
}

void FileFetches::endAll()
{
    for (const FetchPtr &fetch : std::exchange(m_pending, {}))
        fetch->finish(std::nullopt);
}

QCoro::Task<std::optional<QUrl>> FileFetches::file(Attachment attachment)
{
    FetchPtr fetch = m_pending.value(attachment.id);
    if (!fetch) {
        fetch = std::make_shared<Fetch>();
        m_pending.insert(attachment.id, fetch);
        spawn(run(attachment, fetch));
    }
    const End end{fetch};
    co_return co_await end;
}

QCoro::Task<> FileFetches::run(Attachment attachment, FetchPtr fetch)
{
    const QPointer<FileFetches> self(this);
    std::optional<QUrl> file;
    try {
        file = co_await m_store.localFile(attachment);
    } catch (const OwnerGone &) {
        file.reset();
    }
    if (self && m_pending.value(attachment.id) == fetch)
        m_pending.remove(attachment.id);
    fetch->finish(file);
}
