#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <memory>

/// A file of preferences that is written on another thread. Writing starts immediately and keeps the order: the file
/// never contains a value without all values written before it. Values that are written while the disk is busy are
/// stored together. Each time the whole file is replaced, under a lock shared by all processes, and values of other
/// processes are kept. UI thread only.
class PreferencesFile
{
public:
    using Values = QHash<QString, QVariant>;

    explicit PreferencesFile(const QString &path);
    /// Stores all values that are not on disk yet.
    ~PreferencesFile();
    PreferencesFile(const PreferencesFile &) = delete;
    PreferencesFile &operator=(const PreferencesFile &) = delete;

    /// The content of the file, after storing everything that this process has written with other objects.
    Values read() const;
    /// Returns without waiting for the disk. A value that cannot be stored is tried again with the next write and in the
    /// destructor.
    void write(const QString &key, const QVariant &value);

private:
    class Pending;

    // Shared with the thread that writes.
    std::shared_ptr<Pending> m_pending;
};
