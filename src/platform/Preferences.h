#pragma once

#include "platform/PreferencesFile.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

/// The user's store of small values, each under a plain name. A value of another type than requested counts as absent,
/// so a damaged file or one written by another program causes no failure. A written value applies at once; another
/// thread stores it on disk, starting immediately and keeping the order of the writes. A crash loses at most the values
/// that the thread has not stored yet; the destructor stores all that is left. Values that another process writes are
/// read when the next object is made. UI thread only.
class Preferences
{
public:
    /// Opens the user's own store, in the desktop's standard folder for settings.
    Preferences();
    /// Opens a store in the given file.
    explicit Preferences(const QString &file);
    Preferences(const Preferences &) = delete;
    Preferences &operator=(const Preferences &) = delete;

    /// The value of a key; absent if there is none or if it has another type.
    std::optional<QString> text(const QString &key) const;
    std::optional<bool> flag(const QString &key) const;
    std::optional<QStringList> texts(const QString &key) const;
    std::optional<QByteArray> bytes(const QString &key) const;

    /// Replaces the value of a key and writes it to disk. Errors of the disk are not reported.
    void setText(const QString &key, const QString &value);
    void setFlag(const QString &key, bool value);
    void setTexts(const QString &key, const QStringList &value);
    void setBytes(const QString &key, const QByteArray &value);

private:
    void write(const QString &key, const QVariant &value);

    PreferencesFile m_file;
    PreferencesFile::Values m_values;
};
