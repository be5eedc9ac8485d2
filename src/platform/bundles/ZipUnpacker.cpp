#include "platform/bundles/ZipUnpacker.h"

#include "platform/bundles/BundlePath.h"
#include "platform/bundles/UpdateError.h"

#include <QFile>

#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t BlockSize = 0x10000;
constexpr mode_t SpecialPermissions = S_ISUID | S_ISGID | S_ISVTX;
constexpr mode_t FolderMode = 0755;

UpdateError archiveRefused(const QString &reason)
{
    return UpdateError::tool(u"L'archive est refusée : "_s + reason);
}

UpdateError archiveRefused(const QString &reason, QByteArrayView path)
{
    return archiveRefused(reason + u" (« "_s + BundlePath::shown(path) + u" »)."_s);
}

UpdateError archiveUnreadable()
{
    return UpdateError::tool(u"L'archive est illisible."_s);
}

UpdateError unwritable(QByteArrayView path, int error)
{
    return UpdateError::tool(u"Impossible d'écrire « "_s + BundlePath::shown(path) + u" » : "_s +
                             QString::fromStdString(std::generic_category().message(error)) + u'.');
}

struct Free
{
    void operator()(archive *reader) const { archive_read_free(reader); }
};

/// Unpacks one archive.
class Unpacking
{
public:
    Unpacking(const QString &archive, const QString &folder, const ZipUnpacker::Limits &limits)
        : m_folder(QFile::encodeName(folder)), m_limits(limits), m_reader(archive_read_new())
    {
        // Nothing but zip: libarchive reads many other formats, which would only be more to attack. Names are taken as
        // bytes, whatever the language of the process.
        archive_read_support_format_zip_seekable(m_reader.get());
        if (archive_read_open_filename(m_reader.get(), QFile::encodeName(archive).constData(),
                                       BlockSize) != ARCHIVE_OK)
            throw archiveUnreadable();
    }

    void run()
    {
        archive_entry *entry = nullptr;
        for (int result = next(entry); result != ARCHIVE_EOF; result = next(entry)) {
            // A warning says that something was not understood.
            if (result != ARCHIVE_OK)
                throw archiveUnreadable();
            if (++m_entries > m_limits.entries)
                throw archiveRefused(u"elle contient trop de fichiers."_s);
            unpack(*entry);
        }
    }

private:
    int next(archive_entry *&entry) { return archive_read_next_header(m_reader.get(), &entry); }

    void unpack(archive_entry &entry)
    {
        const QByteArray path = checkedPath(entry);
        checkKind(entry, path);
        if (archive_entry_filetype(&entry) == AE_IFDIR)
            return makeFolders(path);
        if (const qsizetype end = path.lastIndexOf('/'); end > 0)
            makeFolders(path.first(end));
        writeFile(entry, path);
    }

    static QByteArray checkedPath(archive_entry &entry)
    {
        QByteArray path = archive_entry_pathname(&entry);
        // The path of a folder ends with a slash.
        if (archive_entry_filetype(&entry) == AE_IFDIR && path.size() > 1 && path.endsWith('/'))
            path.chop(1);
        switch (BundlePath::faultOf(path)) {
        case BundlePath::Fault::None:
            return path;
        case BundlePath::Fault::Absolute:
            throw archiveRefused(u"elle contient un chemin absolu"_s, path);
        case BundlePath::Fault::LeadsOut:
            throw archiveRefused(u"elle contient un chemin qui sort du dossier"_s, path);
        case BundlePath::Fault::Invalid:
            break;
        }
        throw archiveRefused(u"elle contient un nom de fichier non valide"_s, path);
    }

    static void checkKind(archive_entry &entry, const QByteArray &path)
    {
        if (archive_entry_is_encrypted(&entry))
            throw archiveRefused(u"elle est chiffrée."_s);
        const auto type = archive_entry_filetype(&entry);
        if (type == AE_IFLNK || archive_entry_hardlink(&entry))
            throw archiveRefused(u"elle contient un lien"_s, path);
        if (type != AE_IFREG && type != AE_IFDIR)
            throw archiveRefused(u"elle contient un fichier spécial"_s, path);
        if (archive_entry_perm(&entry) & SpecialPermissions)
            throw archiveRefused(u"elle contient un fichier aux droits spéciaux"_s, path);
    }

    QByteArray below(const QByteArray &path) const { return m_folder + '/' + path; }

    /// Creates a folder and those above it. Nobody else writes into the working folder, so what exists was made here.
    void makeFolders(const QByteArray &path)
    {
        for (qsizetype end = path.indexOf('/'); end > 0; end = path.indexOf('/', end + 1))
            makeFolder(path.first(end));
        makeFolder(path);
    }

    void makeFolder(const QByteArray &path)
    {
        const QByteArray full = below(path);
        if (::mkdir(full.constData(), FolderMode) != 0) {
            struct stat status = {};
            if (errno != EEXIST)
                throw unwritable(path, errno);
            if (::lstat(full.constData(), &status) != 0 || !S_ISDIR(status.st_mode))
                throw archiveRefused(u"elle contient deux fois le même nom"_s, path);
        } else if (::chmod(full.constData(), FolderMode) != 0) {
            throw unwritable(path, errno);
        }
    }

    void writeFile(archive_entry &entry, const QByteArray &path)
    {
        if (archive_entry_size_is_set(&entry))
            checkSize(archive_entry_size(&entry), path);
        const int descriptor =
            ::open(below(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                   S_IRUSR | S_IWUSR);
        if (descriptor < 0 && (errno == EEXIST || errno == EISDIR))
            throw archiveRefused(u"elle contient deux fois le même nom"_s, path);
        QFile file;
        if (descriptor < 0 ||
            !file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle))
            throw unwritable(path, errno);
        copyContent(file, path);
        const mode_t mode = archive_entry_perm(&entry) & S_IXUSR ? 0755 : 0644;
        if (!file.flush() || ::fchmod(descriptor, mode) != 0)
            throw unwritable(path, errno);
    }

    void copyContent(QFile &file, const QByteArray &path)
    {
        const void *block = nullptr;
        size_t size = 0;
        la_int64_t offset = 0;
        qint64 written = 0;
        int result = ARCHIVE_OK;
        while ((result = archive_read_data_block(m_reader.get(), &block, &size, &offset)) ==
               ARCHIVE_OK) {
            checkSize(written + qint64(size), path);
            if (offset != written)
                throw archiveUnreadable();
            if (file.write(static_cast<const char *>(block), qint64(size)) != qint64(size))
                throw unwritable(path, errno);
            written += qint64(size);
        }
        if (result != ARCHIVE_EOF)
            throw archiveUnreadable();
        m_written += written;
    }

    void checkSize(qint64 size, const QByteArray &path) const
    {
        if (size < 0)
            throw archiveUnreadable();
        if (size > m_limits.fileSize || size > m_limits.wholeSize - m_written)
            throw archiveRefused(u"elle contient trop de données"_s, path);
    }

    QByteArray m_folder;
    ZipUnpacker::Limits m_limits;
    std::unique_ptr<archive, Free> m_reader;
    qint64 m_entries = 0;
    /// The size of all complete files.
    qint64 m_written = 0;
};

} // namespace

void ZipUnpacker::unpack(const QString &archive, const QString &folder, const Limits &limits)
{
    Unpacking(archive, folder, limits).run();
}
