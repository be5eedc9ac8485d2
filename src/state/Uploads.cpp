#include "state/Uploads.h"

#include <algorithm>

std::optional<double> RunningUpload::fraction() const
{
    if (progress.total <= 0)
        return std::nullopt;
    return std::clamp(double(progress.sent) / double(progress.total), 0.0, 1.0);
}

Uploads::Entry::Entry(Uploads &uploads, RunningUpload upload, Clock &clock)
    : m_uploads(&uploads), m_upload(std::move(upload)), m_clock(clock)
{
}

Uploads::Entry::~Entry()
{
    if (m_uploads && m_uploads->m_entries.erase(m_upload.id) > 0)
        Q_EMIT m_uploads->changed(m_upload.issueKey);
}

UploadObserver Uploads::Entry::observer() const
{
    return [uploads = m_uploads, id = m_upload.id](const UploadProgress &progress) {
        if (uploads)
            uploads->note(id, progress);
    };
}

Uploads::~Uploads()
{
    for (const auto &[id, entry] : m_entries)
        entry->m_pause.reset();
}

Uploads::Running Uploads::begin(const QString &issueKey, const QStringList &fileNames, Clock &clock)
{
    const RunningUpload upload{++m_lastId, issueKey, fileNames, {}};
    auto entry = std::make_unique<Entry>(*this, upload, clock);
    m_entries[upload.id] = entry.get();
    Q_EMIT changed(issueKey);
    return entry;
}

QList<RunningUpload> Uploads::ofIssue(const QString &issueKey) const
{
    QList<RunningUpload> found;
    for (const auto &[id, entry] : m_entries) {
        if (entry->m_upload.issueKey == issueKey)
            found.append(entry->m_upload);
    }
    return found;
}

int Uploads::fileCount(const QString &issueKey) const
{
    int count = 0;
    for (const RunningUpload &upload : ofIssue(issueKey))
        count += int(upload.fileNames.size());
    return count;
}

void Uploads::cancel(quint64 id)
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return;
    // A copy, because the stop may end the upload and destroy the entry.
    std::stop_source(found->second->m_stop).request_stop();
}

void Uploads::forgetAll()
{
    const auto forgotten = std::exchange(m_entries, {});
    for (const auto &[id, entry] : forgotten)
        entry->m_pause.reset();
    for (const auto &[id, entry] : forgotten)
        Q_EMIT changed(entry->m_upload.issueKey);
}

void Uploads::note(quint64 id, const UploadProgress &progress)
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return;
    found->second->m_newest = progress;
    if (!found->second->m_pause)
        announce(id);
}

/// Announces the newest progress unless it is known, and again after the pause if it has changed in the meantime.
void Uploads::announce(quint64 id)
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return;
    Entry &entry = *found->second;
    entry.m_pause.reset();
    if (entry.m_upload.progress == entry.m_newest)
        return;
    entry.m_upload.progress = entry.m_newest;
    entry.m_pause = entry.m_clock.after(Pace, [this, id] { announce(id); });
    Q_EMIT changed(QString(entry.m_upload.issueKey));
}
