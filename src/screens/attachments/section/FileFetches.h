#pragma once

#include "state/AppStore.h"

#include <QHash>

#include <memory>

/// Fetches the files of attachments to the local cache. A file that is asked for while it is being fetched is fetched
/// once, whichever screens ask. There is one object for each store, which owns it.
class FileFetches : public QObject
{
    Q_OBJECT

public:
    static FileFetches &of(AppStore &store);

    /// A local file with the content; nothing on failure, which the store has then reported.
    QCoro::Task<std::optional<QUrl>> file(Attachment attachment);

private:
    struct Fetch;
    struct End;
    using FetchPtr = std::shared_ptr<Fetch>;

    explicit FileFetches(AppStore &store);

    QCoro::Task<> run(Attachment attachment, FetchPtr fetch);
    /// Nobody waits for what the ended session fetches.
    void endAll();

    AppStore &m_store;
    /// The fetches under way in the present session, by attachment.
    QHash<QString, FetchPtr> m_pending;
};
