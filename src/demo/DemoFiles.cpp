#include "demo/DemoFiles.h"

#include "model/Failure.h"
#include "model/TextFolding.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace DemoFiles {

namespace {

QString reason(const QFileInfo &source)
{
    if (!source.exists())
        return u"il n'existe pas."_s;
    if (!source.isFile())
        return u"ce n'est pas un fichier."_s;
    if (!source.isReadable())
        return u"tu n'as pas le droit de le lire."_s;
    return u"l'écriture a échoué."_s;
}

[[noreturn]] void failToCopy(const QUrl &file)
{
    throw Failure(u"Impossible de copier « "_s + file.fileName() + u" » : "_s +
                  reason(QFileInfo(file.toLocalFile())));
}

/// The media type for the file's extension; the contents are never examined, not even without an extension.
QString mediaType(const QFileInfo &file)
{
    const QString anyNameWithSuffix = u"file."_s + file.suffix();
    return QMimeDatabase().mimeTypeForFile(anyNameWithSuffix, QMimeDatabase::MatchExtension).name();
}

int characterCount(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int count = 0;
    while (finder.toNextBoundary() != -1)
        ++count;
    return count;
}

} // namespace

QUrl store(const QUrl &file, const QString &folder, const QString &id)
{
    const QFileInfo source(file.toLocalFile());
    const QDir target(folder + u'/' + id);
    const QString copy = target.filePath(source.fileName());
    if (!source.isFile() || !target.mkpath(u"."_s) || !QFile::copy(source.filePath(), copy))
        failToCopy(file);
    return QUrl::fromLocalFile(copy);
}

Attachment attachment(const QUrl &file, const std::optional<JiraUser> &author, const QDateTime &now)
{
    const QFileInfo info(file.toLocalFile());
    Attachment result;
    result.id = QString::number(stableHash(info.filePath())) + info.fileName();
    result.filename = info.fileName();
    result.mimeType = mediaType(info);
    result.size = info.size();
    result.created = now.addSecs(qint64(characterCount(info.fileName())) * -3600);
    result.author = author;
    result.contentURL = file;
    if (result.mimeType.startsWith("image/"_L1))
        result.thumbnailURL = file;
    return result;
}

} // namespace DemoFiles
