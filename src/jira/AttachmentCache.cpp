#include "jira/AttachmentCache.h"

#include "http/Origin.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// The maximum length of a file name in UTF-8. Common file systems allow 255 bytes, and 200 are enough to tell names
/// apart.
constexpr qsizetype MaximumNameBytes = 200;
/// The maximum length of an extension, including its dot. Longer ones are not file types known to programs.
constexpr qsizetype MaximumEnding = 20;

constexpr int HttpsPort = 443;

bool isPlainWord(const QString &id)
{
    static const QRegularExpression plain(u"\\A[A-Za-z0-9_-]{1,64}\\z"_s);
    return plain.match(id).hasMatch();
}

/// True for a host name with at least one dot inside, so that it is neither "." or ".." nor the name that a folder of an
/// attachment has.
bool isPlainHost(const QString &host)
{
    static const QRegularExpression plain(u"\\A[a-z0-9-]+(\\.[a-z0-9-]+)+\\z"_s);
    return host.size() <= MaximumNameBytes && plain.match(host).hasMatch();
}

/// Starts with a character that no plain word contains, so that a hash never equals another identifier.
QString wordFor(const QString &id)
{
    const QByteArray hash =
        QCryptographicHash::hash(id.toUtf8(), QCryptographicHash::Sha256).toHex();
    return u'~' + QString::fromLatin1(hash);
}

/// True for path separators, control characters and characters that change the direction of writing.
bool isUnsafe(QChar character)
{
    return character == u'/' || character == u':' || character.category() == QChar::Other_Control ||
           character.category() == QChar::Other_Format;
}

QString shortened(QString text, qsizetype bytes)
{
    while (text.toUtf8().size() > bytes)
        text.chop(text.size() > 1 && text.back().isLowSurrogate() ? 2 : 1);
    return text;
}

QString withinLength(const QString &name)
{
    if (name.toUtf8().size() <= MaximumNameBytes)
        return name;
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString ending =
        dot > 0 && name.size() - dot <= MaximumEnding ? name.mid(dot) : QString();
    return shortened(name.chopped(ending.size()), MaximumNameBytes - ending.toUtf8().size()) +
           ending;
}

} // namespace

QString AttachmentCache::systemFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           u"/Velmora/attachments"_s;
}

QString AttachmentCache::siteFolder(const QString &cache, const QUrl &site)
{
    const Origin origin = Origin::of(site);
    const bool isUsual = origin.scheme == "https"_L1 && origin.port == HttpsPort;
    if (isUsual && isPlainHost(origin.host))
        return cache + u'/' + origin.host;
    return cache + u'/' +
           wordFor(origin.scheme + u"://"_s + origin.host + u':' + QString::number(origin.port));
}

QString AttachmentCache::folder(const QString &siteFolder, const Attachment &attachment)
{
    const QString &id = attachment.id;
    return siteFolder + u'/' + (isPlainWord(id) ? id : wordFor(id));
}

QString AttachmentCache::fileName(const Attachment &attachment)
{
    QString name = attachment.filename;
    for (QChar &character : name) {
        if (isUnsafe(character))
            character = u'-';
    }
    const bool isUsable = !name.isEmpty() && name != "."_L1 && name != ".."_L1;
    return isUsable ? withinLength(name) : u"fichier"_s;
}

QString AttachmentCache::file(const QString &siteFolder, const Attachment &attachment)
{
    return folder(siteFolder, attachment) + u'/' + fileName(attachment);
}
