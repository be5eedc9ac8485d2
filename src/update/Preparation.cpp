#include "update/Preparation.h"

#include "platform/bundles/UpdateError.h"

#include <QDir>

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// Far below the limit of file systems for one name.
constexpr qsizetype LongestBuild = 100;

QString reasonOf(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

[[noreturn]] void failOn(const QString &path, const QString &reason)
{
    throw UpdateError::tool(u"Impossible de préparer la mise à jour dans « "_s + path + u" » : "_s +
                            reason + u'.');
}

/// The first folder whose name ends in ".app", by name.
std::optional<QString> firstApp(const QString &folder)
{
    const QFileInfoList entries = QDir(folder).entryInfoList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    const auto found = std::ranges::find_if(
        entries, [](const QFileInfo &entry) { return entry.suffix() == "app"_L1; });
    return found == entries.end() ? std::nullopt : std::optional(found->filePath());
}

} // namespace

QString Preparation::workingFolder(const QString &parent, const QString &build)
{
    const QByteArray name = QUrl::toPercentEncoding(build);
    return parent + u"/Velmora-update-"_s +
           QString::fromLatin1(name.first(std::min(name.size(), LongestBuild)));
}

void Preparation::makePrivateFolder(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    std::error_code ignored;
    // Removes a link itself and not what it leads to.
    std::filesystem::remove_all(std::filesystem::path(name.toStdString()), ignored);
    QDir().mkpath(QFileInfo(path).path());
    // Fails if anything is left there, such as a folder of another user.
    if (::mkdir(name.constData(), S_IRWXU) != 0)
        failOn(path, reasonOf(errno));
}

QString Preparation::preparedApp(const AppBundles &bundles, const UpdateTransport::Archive &archive,
                                 const ReleaseInfo &release, const QString &parent)
{
    const QString folder = workingFolder(parent, release.build);
    makePrivateFolder(folder);
    const QString zip = folder + u"/update.zip"_s;
    if (!archive.file || !archive.file->rename(zip))
        failOn(zip, archive.file ? archive.file->errorString() : u"aucun fichier"_s);
    archive.file->setAutoRemove(false);
    if (QString::fromLatin1(archive.sha256) != release.sha256.toLower())
        throw UpdateError::checksum();
    bundles.unpack(zip, folder);
    const auto app = firstApp(folder);
    if (!app)
        throw UpdateError::missingApp();
    bundles.verify(*app, release.version, release.build);
    return *app;
}
