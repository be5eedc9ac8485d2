#include "platform/Preferences.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSettings>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Booleans are stored as words, so that the running program and its next start read the same type of value.
constexpr auto True = "true"_L1;
constexpr auto False = "false"_L1;

/// Lists are stored as JSON, because the file format does not distinguish a list of one text from a text, nor an empty
/// list from an absent value.
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

/// The user's own file. The system-wide settings of an administrator are not read.
QString usersFile()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"Velmora"_s, u"Velmora"_s)
        .fileName();
}

} // namespace

Preferences::Preferences() : Preferences(usersFile()) {}

Preferences::Preferences(const QString &file) : m_file(file), m_values(m_file.read()) {}

std::optional<QString> Preferences::text(const QString &key) const
{
    const QVariant value = m_values.value(key);
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
    const QVariant value = m_values.value(key);
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
    // If the file cannot be written, the value still applies until the program ends.
    m_values.insert(key, value);
    m_file.write(key, value);
}
