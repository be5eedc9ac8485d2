/// Unpacks an archive of an update.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "platform/bundles/UpdateError.h"
#include "platform/bundles/ZipUnpacker.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
constexpr ZipUnpacker::Limits Small = {.entries = 20, .fileSize = 100'000, .wholeSize = 200'000};

/// The size of all files; promises that there is nothing but files and folders.
qint64 sizeBelow(const QString &folder)
{
    qint64 size = 0;
    QDirIterator each(folder, Everything, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        each.next();
        const QFileInfo file = each.fileInfo();
        promise(!file.isSymLink() && (file.isFile() || file.isDir()),
                "only files and folders are made");
        size += file.isFile() ? file.size() : 0;
    }
    return size;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QTemporaryDir root;
    QFile archive(root.filePath(u"update.zip"_s));
    promise(archive.open(QIODevice::WriteOnly), "the archive can be written");
    archive.write(bytesOf(data, size));
    archive.close();
    const QString folder = root.filePath(u"work"_s);
    QDir().mkdir(folder);
    try {
        ZipUnpacker::unpack(archive.fileName(), folder, Small);
    } catch (const UpdateError &error) {
        promise(error.kind() == UpdateError::Kind::Tool, "a refusal is that of a tool");
    }
    promise(sizeBelow(folder) <= Small.wholeSize, "no more than the limit is written");
    promise(QDir(root.path()).entryList(Everything).size() == 2, "nothing is written outside");
    return 0;
}
