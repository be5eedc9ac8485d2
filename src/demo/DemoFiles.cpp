#include "demo/DemoFiles.h"

#include "demo/DemoPicture.h"
#include "demo/DemoSeed.h"
#include "model/Failure.h"
#include "model/TextFolding.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QSaveFile>
#include <QTextBoundaryFinder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace DemoFiles {

namespace {

const QString screenshotName = u"facture-septembre-erreur.png"_s;
const QString mockupName = u"maquette-facture-v3.png"_s;
const QString logName = u"worker-facturation.log"_s;

const QString logText =
    u"2026-10-25 08:14:02 INFO  invoice-worker  Génération PDF facture #2026-09-1187\n"
    "2026-10-25 08:14:32 ERROR invoice-worker  Timeout après 30 s (render_pdf)\n"
    "2026-10-25 08:14:32 WARN  invoice-worker  Nouvelle tentative 1/3\n"
    "2026-10-25 08:15:02 ERROR invoice-worker  Timeout après 30 s (render_pdf)\n"
    "2026-10-25 08:15:02 ERROR invoice-worker  Abandon : facture marquée « à régénérer »"_s;

QString pathOf(const QString &folder, const QString &name)
{
    return folder + u'/' + name;
}

void writeLog(const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(logText.toUtf8());
    file.commit();
}

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

QHash<QString, QList<Attachment>> seed(const QString &folder, const QDateTime &now)
{
    const auto seeded = [&](const QString &name, DemoSeed::Person author) {
        return attachment(QUrl::fromLocalFile(pathOf(folder, name)), DemoSeed::user(author), now);
    };
    const Attachment mockup = seeded(mockupName, DemoSeed::Person::Nora);
    return {
        {u"SUP-41"_s,
         {seeded(screenshotName, DemoSeed::Person::Me), seeded(logName, DemoSeed::Person::Elsa)}},
        {u"WEB-212"_s, {mockup}},
        {u"WEB-201"_s, {mockup}},
    };
}

bool isComplete(const QString &folder)
{
    const QStringList names{screenshotName, mockupName, logName};
    return std::ranges::all_of(
        names, [&](const QString &name) { return QFile::exists(pathOf(folder, name)); });
}

void write(const QString &folder)
{
    QDir(folder).mkpath(u"."_s);
    DemoPicture::write(pathOf(folder, screenshotName), QColor::fromRgbF(0.92F, 0.32F, 0.32F));
    DemoPicture::write(pathOf(folder, mockupName), QColor::fromRgbF(0.37F, 0.42F, 0.82F));
    writeLog(pathOf(folder, logName));
}

void updateSizes(QList<Attachment> &attachments)
{
    for (Attachment &attachment : attachments)
        attachment.size = QFileInfo(attachment.contentURL.value_or(QUrl()).toLocalFile()).size();
}

QUrl store(const QUrl &file, const QString &folder, const QString &id)
{
    const QFileInfo source(file.toLocalFile());
    const QDir target(folder + u'/' + id);
    const QString copy = target.filePath(source.fileName());
    if (!source.isFile() || !target.mkpath(u"."_s) || !QFile::copy(source.filePath(), copy))
        failToCopy(file);
    return QUrl::fromLocalFile(copy);
}

QList<Attachment> storeAll(const QList<QUrl> &files, const QString &folder, const QStringList &ids,
                           const JiraUser &author, const QDateTime &now)
{
    QList<Attachment> stored;
    for (qsizetype i = 0; i < files.size(); ++i)
        stored.append(attachment(store(files[i], folder, ids[i]), author, now));
    return stored;
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
