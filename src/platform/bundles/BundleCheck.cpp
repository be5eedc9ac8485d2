#include "platform/bundles/BundleCheck.h"

#include "platform/bundles/BundlePath.h"
#include "platform/bundles/BundleSignature.h"
#include "platform/bundles/UpdateError.h"

#include <QCryptographicHash>
#include <QFile>
#include <QHash>
#include <QSet>

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 ChunkSize = 0x100000;
constexpr unsigned PermissionBits = 07777;

UpdateError unreadable()
{
    return UpdateError::signature(u"signature illisible"_s);
}

UpdateError refused(const QString &reason)
{
    return UpdateError::signature(reason + u". La mise à jour ne vient pas du même développeur."_s);
}

UpdateError refused(const QString &before, const QByteArray &path, const QString &after)
{
    return refused(before + u"« "_s + BundlePath::shown(path) + u" »"_s + after);
}

QString pathOf(const std::filesystem::path &path)
{
    return QFile::decodeName(path.c_str());
}

/// Opens a regular file for reading, without following a link at its end. Returns false otherwise.
bool openRegular(QFile &file, const QString &path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat status = {};
    if (descriptor < 0)
        return false;
    return file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) &&
           ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

std::optional<QByteArray> smallFile(const QString &path, qint64 largest)
{
    QFile file;
    if (!openRegular(file, path) || file.size() > largest)
        return std::nullopt;
    return file.read(largest);
}

/// Compares what is in a folder with the files of a manifest.
class Comparison
{
public:
    Comparison(const std::filesystem::path &root, const QList<BundleFile> &files) : m_root(root)
    {
        for (const BundleFile &file : files) {
            m_missing.insert(file.path, file);
            for (qsizetype end = file.path.indexOf('/'); end > 0;
                 end = file.path.indexOf('/', end + 1))
                m_folders.insert(file.path.first(end));
        }
    }

    void visit(const std::filesystem::path &entry)
    {
        const QByteArray path =
            QByteArray::fromStdString(entry.lexically_relative(m_root).string());
        struct stat status = {};
        if (::lstat(entry.c_str(), &status) != 0)
            throw unreadable();
        if (S_ISLNK(status.st_mode))
            throw refused({}, path, u" est un lien"_s);
        if (S_ISDIR(status.st_mode))
            return visitFolder(path, status.st_mode & PermissionBits);
        if (!S_ISREG(status.st_mode))
            throw refused({}, path, u" est un fichier spécial"_s);
        if (path != BundleManifest::Name && path != BundleManifest::SignatureName)
            visitFile(entry, path, status);
    }

    void finish() const
    {
        if (!m_missing.isEmpty())
            throw refused(u"le fichier "_s, m_missing.begin().key(), u" manque"_s);
    }

private:
    void visitFolder(const QByteArray &path, unsigned mode) const
    {
        if (!m_folders.contains(path))
            throw refused(u"le dossier "_s, path, u" est en trop"_s);
        if (mode != 0755)
            throw refused(u"les droits de "_s, path, u" ont été modifiés"_s);
    }

    void visitFile(const std::filesystem::path &entry, const QByteArray &path,
                   const struct stat &status)
    {
        const auto found = m_missing.constFind(path);
        if (found == m_missing.constEnd())
            throw refused(u"le fichier "_s, path, u" est en trop"_s);
        // Another name of the same file could change it later.
        if (status.st_nlink != 1)
            throw refused({}, path, u" est un lien"_s);
        if ((status.st_mode & PermissionBits) != found->mode())
            throw refused(u"les droits de "_s, path, u" ont été modifiés"_s);
        if (status.st_size != found->size || BundleCheck::sha256(pathOf(entry)) != found->sha256)
            throw refused(u"le fichier "_s, path, u" a été modifié"_s);
        m_missing.erase(found);
    }

    std::filesystem::path m_root;
    /// The files that were not visited yet.
    QHash<QByteArray, BundleFile> m_missing;
    QSet<QByteArray> m_folders;
};

void compareFiles(const QString &app, const BundleManifest &manifest)
{
    const std::filesystem::path root(QFile::encodeName(app).toStdString());
    Comparison comparison(root, manifest.files);
    try {
        // Does not follow links.
        for (const auto &entry : std::filesystem::recursive_directory_iterator(root))
            comparison.visit(entry.path());
    } catch (const std::filesystem::filesystem_error &) {
        throw unreadable();
    }
    comparison.finish();
}

bool hasProgram(const BundleManifest &manifest)
{
    return std::ranges::any_of(manifest.files, [](const BundleFile &file) {
        return file.path == BundleManifest::Program && file.isExecutable;
    });
}

} // namespace

std::optional<QByteArray> BundleCheck::sha256(const QString &path)
{
    QFile file;
    if (!openRegular(file, path))
        return std::nullopt;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (QByteArray piece = file.read(ChunkSize); !piece.isEmpty(); piece = file.read(ChunkSize))
        hash.addData(piece);
    return file.error() == QFile::NoError ? std::optional(hash.result().toHex()) : std::nullopt;
}

BundleManifest BundleCheck::manifestOf(const QString &app)
{
    const auto text = smallFile(app + u'/' + QLatin1StringView(BundleManifest::Name),
                                BundleManifest::LargestSize);
    const auto manifest = text ? BundleManifest::parsed(*text) : std::nullopt;
    if (!manifest)
        throw unreadable();
    if (!manifest->key)
        return *manifest;
    constexpr qint64 largestSignature = 1000;
    const auto signature =
        smallFile(app + u'/' + QLatin1StringView(BundleManifest::SignatureName), largestSignature);
    if (!BundleSignature::isValid(*text, signature.value_or(QByteArray()), *manifest->key))
        throw refused(u"la signature n'est pas valable"_s);
    return *manifest;
}

BundleManifest BundleCheck::verified(const QString &app, const Requirement &requirement)
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(app).constData(), &status) != 0 || !S_ISDIR(status.st_mode))
        throw unreadable();
    const BundleManifest manifest = manifestOf(app);
    if (manifest.identifier != requirement.identifier)
        throw refused(u"l'identifiant est différent"_s);
    if (requirement.key && !manifest.key)
        throw refused(u"l'application n'est pas signée"_s);
    if (requirement.key && manifest.key != requirement.key)
        throw refused(u"la clé de signature est différente"_s);
    if (!hasProgram(manifest))
        throw refused(u"le programme manque"_s);
    compareFiles(app, manifest);
    return manifest;
}
