#include "platform/PreferencesFile.h"

#include <QFileInfo>
#include <QLockFile>
#include <QMutex>
#include <QSettings>
#include <QThreadPool>

#include <utility>

namespace {

/// One thread for all files, which keeps the order of the writes.
class Writer : public QThreadPool
{
public:
    Writer() { setMaxThreadCount(1); }
};

Writer &writer()
{
    static Writer only;
    return only;
}

/// Held by a process while it has `QSettings` for the file. `QSettings` itself locks the file for a write only. If another
/// process replaces the file while it is read, `QSettings` takes the new file for read, and overwrites it later.
class SettingsLock
{
public:
    // Without a lock, in a folder that is absent or cannot be written, it goes on.
    explicit SettingsLock(const QString &path) : m_lock(path + QStringLiteral(".turn"))
    {
        m_lock.lock();
    }

private:
    QLockFile m_lock;
};

/// Returns false if the file cannot be written.
bool replaceFile(const QString &path, const PreferencesFile::Values &values)
{
    const SettingsLock lock(path);
    QSettings settings(path, QSettings::IniFormat);
    for (auto value = values.begin(); value != values.end(); ++value)
        settings.setValue(value.key(), value.value());
    settings.sync();
    return settings.status() != QSettings::AccessError;
}

} // namespace

/// The values of a file that are not on disk yet. All objects for the file share them.
class PreferencesFile::Pending
{
public:
    explicit Pending(const QString &path) : m_path(path) {}

    static std::shared_ptr<Pending> of(const QString &path)
    {
        static QHash<QString, std::weak_ptr<Pending>> all;
        auto &entry = all[QFileInfo(path).absoluteFilePath()];
        auto pending = entry.lock();
        if (!pending)
            entry = pending = std::make_shared<Pending>(path);
        return pending;
    }

    const QString &path() const { return m_path; }

    /// Returns true if `store` must be scheduled for the value, false if it is scheduled already.
    bool add(const QString &key, const QVariant &value)
    {
        const QMutexLocker lock(&m_mutex);
        m_values.insert(key, value);
        return !std::exchange(m_isScheduled, true);
    }

    /// The values that could not be written.
    Values values()
    {
        const QMutexLocker lock(&m_mutex);
        return m_values;
    }

    /// Stores the values, after the call of another thread that is storing earlier ones. Values that cannot be written
    /// stay pending.
    void store()
    {
        const QMutexLocker lock(&m_storing);
        const Values values = take();
        if (!values.isEmpty() && !replaceFile(m_path, values))
            putBack(values);
    }

private:
    Values take()
    {
        const QMutexLocker lock(&m_mutex);
        m_isScheduled = false;
        return std::exchange(m_values, {});
    }

    void putBack(Values values)
    {
        const QMutexLocker lock(&m_mutex);
        // Values written in the meantime are newer.
        values.insert(m_values);
        m_values = std::move(values);
    }

    const QString m_path;
    /// Held while values are stored.
    QMutex m_storing;
    /// Held for the access to the members below, never for long.
    QMutex m_mutex;
    Values m_values;
    /// `store` is scheduled and has not taken the values yet.
    bool m_isScheduled = false;
};

PreferencesFile::PreferencesFile(const QString &path) : m_pending(Pending::of(path)) {}

PreferencesFile::~PreferencesFile()
{
    m_pending->store();
}

PreferencesFile::Values PreferencesFile::read() const
{
    m_pending->store();
    const SettingsLock lock(m_pending->path());
    const QSettings settings(m_pending->path(), QSettings::IniFormat);
    Values values;
    for (const auto &key : settings.allKeys())
        values.insert(key, settings.value(key));
    values.insert(m_pending->values());
    return values;
}

void PreferencesFile::write(const QString &key, const QVariant &value)
{
    if (m_pending->add(key, value))
        writer().start([pending = m_pending] { pending->store(); });
}
