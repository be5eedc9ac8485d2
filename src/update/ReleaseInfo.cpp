#include "update/ReleaseInfo.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr auto VersionKey = "version"_L1;
constexpr auto BuildKey = "build"_L1;
constexpr auto UrlKey = "url"_L1;
constexpr auto Sha256Key = "sha256"_L1;
constexpr auto SizeKey = "size"_L1;
constexpr auto MinimumKey = "minimumSystemVersion"_L1;
constexpr auto PublishedKey = "publishedAt"_L1;
constexpr auto NotesKey = "notes"_L1;

Failure wrongType(QLatin1StringView key)
{
    return Failure(u"La description de la mise à jour est illisible : « "_s + key +
                   u" » n'a pas le type attendu."_s);
}

/// Reads the members of an object and remembers the first fault.
class Members
{
public:
    explicit Members(const QJsonObject &object) : m_object(object) {}

    QString text(QLatin1StringView key)
    {
        if (!m_object.contains(key))
            fail(Failure(u"La description de la mise à jour est illisible : « "_s + key +
                         u" » manque."_s));
        else if (!m_object.value(key).isString())
            fail(wrongType(key));
        return m_object.value(key).toString();
    }

    std::optional<QString> textIfPresent(QLatin1StringView key)
    {
        return isAbsent(key) ? std::nullopt : std::optional(text(key));
    }

    std::optional<qint64> integerIfPresent(QLatin1StringView key)
    {
        if (isAbsent(key))
            return std::nullopt;
        const QJsonValue value = m_object.value(key);
        // A value that is no integer gives the default.
        const qint64 number = value.toInteger(0);
        if (!value.isDouble() || number != value.toInteger(1))
            fail(wrongType(key));
        return number;
    }

    const std::optional<Failure> &failure() const { return m_failure; }

private:
    bool isAbsent(QLatin1StringView key) const
    {
        return !m_object.contains(key) || m_object.value(key).isNull();
    }
    void fail(const Failure &failure)
    {
        if (!m_failure)
            m_failure = failure;
    }

    QJsonObject m_object;
    std::optional<Failure> m_failure;
};

void insert(QJsonObject &object, QLatin1StringView key, const std::optional<QString> &text)
{
    if (text)
        object.insert(key, *text);
}

} // namespace

std::expected<ReleaseInfo, Failure> ReleaseInfo::decoded(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::unexpected(Failure(
            u"La description de la mise à jour est illisible : ce n'est pas un objet JSON."_s));
    Members members(document.object());
    ReleaseInfo info;
    info.version = members.text(VersionKey);
    info.build = members.text(BuildKey);
    info.url = members.text(UrlKey);
    info.sha256 = members.text(Sha256Key);
    info.size = members.integerIfPresent(SizeKey);
    info.minimumSystemVersion = members.textIfPresent(MinimumKey);
    info.publishedAt = members.textIfPresent(PublishedKey);
    info.notes = members.textIfPresent(NotesKey);
    if (members.failure())
        return std::unexpected(*members.failure());
    return info;
}

QByteArray ReleaseInfo::encoded() const
{
    QJsonObject object{
        {VersionKey, version}, {BuildKey, build}, {UrlKey, url}, {Sha256Key, sha256}};
    if (size)
        object.insert(SizeKey, *size);
    insert(object, MinimumKey, minimumSystemVersion);
    insert(object, PublishedKey, publishedAt);
    insert(object, NotesKey, notes);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}
