#include "platform/Preferences.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSettings>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Flags are kept as words, so that a value reads alike in the instance that wrote it and in the next one.
constexpr auto True = "true"_L1;
constexpr auto False = "false"_L1;

/// Lists are kept as JSON: the file format itself cannot tell a list of one text from a text, nor an empty list from
/// nothing.
QByteArray encoded(const QStringList &texts)
{
    return QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact);
}

std::optional<QStringList> decoded(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray())
        return std::nullopt;
    const QJsonArray array = document.array();
    if (!std::ranges::all_of(array, [](const auto &entry) { return entry.isString(); }))
        return std::nullopt;
    return document.toVariant().toStringList();
}

std::unique_ptr<QSettings> prepared(std::unique_ptr<QSettings> settings)
{
    // Only the user's own store counts, not what an administrator may have put beside it.
    settings->setFallbacksEnabled(false);
    return settings;
}

} // namespace

Preferences::Preferences()
    : m_settings(prepared(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                                      u"Velmora"_s, u"Velmora"_s)))
{
}

Preferences::Preferences(const QString &file)
    : m_settings(prepared(std::make_unique<QSettings>(file, QSettings::IniFormat)))
{
}

Preferences::~Preferences() = default;

std::optional<QString> Preferences::text(const QString &key) const
{
    const QVariant value = m_settings->value(key);
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

std::optional<bool> Preferences::flag(const QString &key) const
{
    const auto word = text(key);
    if (word == True)
        return true;
    if (word == False)
        return false;
    return std::nullopt;
}

std::optional<QStringList> Preferences::texts(const QString &key) const
{
    const auto json = bytes(key);
    return json ? decoded(*json) : std::nullopt;
}

std::optional<QByteArray> Preferences::bytes(const QString &key) const
{
    const QVariant value = m_settings->value(key);
    if (value.typeId() != QMetaType::QByteArray)
        return std::nullopt;
    return value.toByteArray();
}

void Preferences::setText(const QString &key, const QString &value)
{
    write(key, value);
}

void Preferences::setFlag(const QString &key, bool value)
{
    write(key, QString(value ? True : False));
}

void Preferences::setTexts(const QString &key, const QStringList &value)
{
    write(key, encoded(value));
}

void Preferences::setBytes(const QString &key, const QByteArray &value)
{
    write(key, value);
}

void Preferences::write(const QString &key, const QVariant &value)
{
    m_settings->setValue(key, value);
    // A disk that cannot be written leaves the value in force until the program ends.
    m_settings->sync();
}
