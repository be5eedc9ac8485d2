#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

class QSettings;

/// The per-user store of small values under plain names. A value of another kind than asked for reads as absent, so a
/// broken or foreign store never fails. Every write reaches the disk before the operation returns. UI thread only.
class Preferences
{
public:
    /// The user's own store, in the folder that the desktop prescribes.
    Preferences();
    /// A store in the given file.
    explicit Preferences(const QString &file);
    ~Preferences();
    Preferences(const Preferences &) = delete;
    Preferences &operator=(const Preferences &) = delete;

    std::optional<QString> text(const QString &key) const;
    std::optional<bool> flag(const QString &key) const;
    std::optional<QStringList> texts(const QString &key) const;
    std::optional<QByteArray> bytes(const QString &key) const;

    void setText(const QString &key, const QString &value);
    void setFlag(const QString &key, bool value);
    void setTexts(const QString &key, const QStringList &value);
    void setBytes(const QString &key, const QByteArray &value);

private:
    void write(const QString &key, const QVariant &value);

    std::unique_ptr<QSettings> m_settings;
};
