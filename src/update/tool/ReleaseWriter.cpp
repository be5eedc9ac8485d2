#include "update/tool/ReleaseWriter.h"

#include "platform/bundles/BundleCheck.h"
#include "platform/bundles/BundlePath.h"
#include "platform/bundles/BundleSignature.h"
#include "platform/bundles/ZipUnpacker.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <archive.h>
#include <archive_entry.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr auto FileMode =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto FolderMode = FileMode | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

struct Free
{
    void operator()(archive *writer) const { archive_write_free(writer); }
    void operator()(archive_entry *entry) const { archive_entry_free(entry); }
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(u"Cannot read "_s + path);
    return file.readAll();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.flush() || !file.setPermissions(FileMode))
        throw Failure(u"Cannot write "_s + path);
}

bool isOfTheManifest(const QByteArray &path)
{
    return path == BundleManifest::Name || path == BundleManifest::SignatureName;
}

/// The paths of all files in a bundle, relative and sorted by their bytes. Sets the permissions of the folders.
QList<QByteArray> filesOf(const QString &bundle)
{
    QList<QByteArray> paths;
    QFile::setPermissions(bundle, FolderMode);
    QDirIterator each(bundle, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        each.next();
        const QFileInfo file = each.fileInfo();
        if (file.isSymLink() || (!file.isFile() && !file.isDir()))
            throw Failure(u"A bundle has no links and no special files: "_s + file.filePath());
        const QByteArray path = QDir(bundle).relativeFilePath(file.filePath()).toUtf8();
        if (BundlePath::faultOf(path) != BundlePath::Fault::None)
            throw Failure(u"A bundle cannot contain this name: "_s + file.filePath());
        if (file.isDir())
            QFile::setPermissions(file.filePath(), FolderMode);
        else
            paths.append(path);
    }
    std::ranges::sort(paths);
    return paths;
}

BundleFile described(const QString &bundle, const QByteArray &path)
{
    const QString full = bundle + u'/' + QString::fromUtf8(path);
    const bool isExecutable = path.startsWith("bin/") && QFileInfo(full).isExecutable();
    QFile::setPermissions(full, isExecutable ? FolderMode : FileMode);
    const auto hash = BundleCheck::sha256(full);
    if (!hash)
        throw Failure(u"Cannot read "_s + full);
    return {path, isExecutable, QFileInfo(full).size(), *hash};
}

void addEntry(archive *writer, const QByteArray &path, const QString &file, const QDateTime &time)
{
    const QByteArray content = contentOf(file);
    const std::unique_ptr<archive_entry, Free> entry(archive_entry_new());
    archive_entry_set_pathname(entry.get(), path.constData());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), QFileInfo(file).isExecutable() ? 0755 : 0644);
    archive_entry_set_size(entry.get(), content.size());
    archive_entry_set_mtime(entry.get(), time.toSecsSinceEpoch(), 0);
    archive_entry_set_uid(entry.get(), 0);
    archive_entry_set_gid(entry.get(), 0);
    if (archive_write_header(writer, entry.get()) != ARCHIVE_OK ||
        archive_write_data(writer, content.constData(), size_t(content.size())) != content.size())
        throw Failure(u"Cannot write the archive: "_s +
                      QString::fromUtf8(archive_error_string(writer)));
}

} // namespace

QByteArray ReleaseWriter::seedFrom(const QByteArray &text)
{
    const QByteArray digits = text.trimmed();
    const QByteArray seed = QByteArray::fromHex(digits);
    if (seed.size() != BundleSignature::SeedSize || seed.toHex() != digits.toLower())
        throw Failure(u"The secret key must have 64 hexadecimal digits."_s);
    return seed;
}

void ReleaseWriter::writeManifest(const QString &bundle, const Names &names, const QByteArray &seed)
{
    BundleManifest manifest;
    manifest.identifier = names.identifier;
    manifest.version = names.version;
    manifest.build = names.build;
    manifest.feed = names.feed;
    manifest.key = BundleSignature::publicKey(seed);
    for (const QByteArray &path : filesOf(bundle)) {
        if (!isOfTheManifest(path))
            manifest.files.append(described(bundle, path));
    }
    const QByteArray text = manifest.text();
    if (BundleManifest::parsed(text) != manifest)
        throw Failure(u"The identifier, version, build or feed contains something that a manifest "
                      "cannot contain."_s);
    write(bundle + u'/' + QLatin1StringView(BundleManifest::Name), text);
    write(bundle + u'/' + QLatin1StringView(BundleManifest::SignatureName),
          BundleSignature::sign(text, seed));
}

void ReleaseWriter::writeArchive(const QString &bundle, const QString &archive,
                                 const QDateTime &time)
{
    const std::unique_ptr<::archive, Free> writer(archive_write_new());
    archive_write_set_format_zip(writer.get());
    archive_write_set_options(writer.get(), "zip:compression=deflate");
    if (archive_write_open_filename(writer.get(), QFile::encodeName(archive).constData()) !=
        ARCHIVE_OK)
        throw Failure(u"Cannot write "_s + archive);
    const QByteArray folder = QFileInfo(bundle).fileName().toUtf8();
    for (const QByteArray &path : filesOf(bundle))
        addEntry(writer.get(), folder + '/' + path, bundle + u'/' + QString::fromUtf8(path), time);
    if (archive_write_close(writer.get()) != ARCHIVE_OK)
        throw Failure(u"Cannot write "_s + archive);
}

ReleaseInfo ReleaseWriter::releaseOf(const QString &archive, const Names &names,
                                     const QString &minimum, const QDateTime &time,
                                     const QString &notes)
{
    const auto hash = BundleCheck::sha256(archive);
    if (!hash)
        throw Failure(u"Cannot read "_s + archive);
    ReleaseInfo release;
    release.version = names.version;
    release.build = names.build;
    release.url = QFileInfo(archive).fileName();
    release.sha256 = QString::fromLatin1(*hash);
    release.size = QFileInfo(archive).size();
    release.minimumSystemVersion = minimum;
    release.publishedAt = time.toUTC().toString(Qt::ISODate);
    release.notes = notes;
    return release;
}

void ReleaseWriter::check(const QString &feed, const QString &temporary, const QString &identifier,
                          const QByteArray &publicKey)
{
    const auto release = ReleaseInfo::decoded(contentOf(feed));
    if (!release)
        throw Failure(release.error());
    const QString archive = QFileInfo(feed).dir().filePath(release->url);
    if (QString::fromLatin1(BundleCheck::sha256(archive).value_or(QByteArray())) != release->sha256)
        throw Failure(u"The hash in the feed is not that of the archive."_s);
    const QTemporaryDir folder(temporary + u"/check-XXXXXX"_s);
    ZipUnpacker::unpack(archive, folder.path(), {});
    const BundleManifest manifest = BundleCheck::verified(
        folder.filePath(u"Velmora.app"_s), {.identifier = identifier, .key = publicKey});
    if (manifest.version != release->version || manifest.build != release->build)
        throw Failure(u"The archive does not contain the release of the feed."_s);
}
