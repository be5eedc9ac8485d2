#pragma once

#include "model/UploadProgress.h"
#include "platform/Clock.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>
#include <stop_token>

/// Files that are being uploaded to an issue, all in one request.
struct RunningUpload
{
    /// Unique in its list.
    quint64 id = 0;
    QString issueKey;
    /// One for each file, as the user's disk has them.
    QStringList fileNames;
    UploadProgress progress;

    bool operator==(const RunningUpload &) const = default;

    /// The part that was sent, from 0 to 1; absent as long as it is not known.
    std::optional<double> fraction() const;
};

/// The uploads under way, oldest first. The store begins and ends them; screens observe and cancel them. UI thread only.
class Uploads : public QObject
{
    Q_OBJECT

public:
    class Entry;
    /// How often the progress of an upload is announced at most. A person sees no difference.
    static constexpr std::chrono::milliseconds Pace{100};

    /// An upload that is in the list for as long as this exists, unless the list forgot it.
    using Running = std::unique_ptr<Entry>;

    Uploads() = default;
    ~Uploads() override;

    /// The clock must outlive the upload.
    [[nodiscard]] Running begin(const QString &issueKey, const QStringList &fileNames,
                                Clock &clock);
    QList<RunningUpload> ofIssue(const QString &issueKey) const;
    /// The number of files of an issue.
    int fileCount(const QString &issueKey) const;
    /// Requests the end of the upload with this identifier; has no effect if it has ended.
    void cancel(quint64 id);
    /// Empties the list without ending the uploads.
    void forgetAll();

Q_SIGNALS:
    /// An upload to the issue has begun, has progressed or has ended.
    void changed(const QString &issueKey);

private:
    void note(quint64 id, const UploadProgress &progress);
    void announce(quint64 id);

    quint64 m_lastId = 0;
    std::map<quint64, Entry *> m_entries;
};

/// An upload as the operation has it that sends the files.
class Uploads::Entry
{
public:
    Entry(Uploads &uploads, RunningUpload upload, Clock &clock);
    ~Entry();
    Entry(const Entry &) = delete;
    Entry &operator=(const Entry &) = delete;

    const RunningUpload &upload() const { return m_upload; }
    /// Stopped when the user cancels the upload.
    std::stop_token stop() const { return m_stop.get_token(); }
    /// Takes the progress. It may be called after the end of the upload.
    UploadObserver observer() const;

private:
    friend class Uploads;

    QPointer<Uploads> m_uploads;
    RunningUpload m_upload;
    Clock &m_clock;
    /// The newest progress, which is announced when the pause ends.
    UploadProgress m_newest;
    Clock::TimerHandle m_pause;
    std::stop_source m_stop;
};
