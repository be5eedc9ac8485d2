#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

class QSettings;

/// The user's store of small values, each under a plain name. A value of another type than requested counts as absent,
/// so a damaged file or one written by another program causes no failure. Every write operation stores the value on
/// disk before it returns. UI thread only.
class Preferences
{
public:
    /// Opens the user's own store, in the desktop's standard folder for settings.
    Preferences();
    /// Opens a store in the given file.
    explicit Preferences(const QString &file);
    ~Preferences();
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

    std::unique_ptr<QSettings> m_settings;
};
