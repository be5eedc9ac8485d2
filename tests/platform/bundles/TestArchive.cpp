#include "platform/bundles/TestArchive.h"

#include <QtEndian>

#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <zlib.h>

namespace {

constexpr quint32 LocalHeader = 0x04034b50;
constexpr quint32 CentralHeader = 0x02014b50;
constexpr quint32 EndHeader = 0x06054b50;
/// Made on Unix, so that the attributes contain the mode.
constexpr quint16 MadeBy = 0x031e;
constexpr quint16 Needed = 20;
/// 1 January 2026.
constexpr quint16 Date = (46 << 9) | (1 << 5) | 1;

template <typename T>
void add(QByteArray &bytes, T number)
{
    std::array<char, sizeof(T)> raw{};
    qToLittleEndian(number, raw.data());
    bytes.append(raw.data(), qsizetype(raw.size()));
}

QByteArray contentOf(const TestEntry &entry)
{
    return entry.link.isEmpty() ? entry.content : entry.link;
}

/// What the local header and the one in the directory have in common: stored without compression.
QByteArray description(const TestEntry &entry)
{
    const QByteArray content = contentOf(entry);
    QByteArray bytes;
    add<quint16>(bytes, Needed);
    add<quint16>(bytes, 0); // flags
    add<quint16>(bytes, 0); // stored
    add<quint16>(bytes, 0); // time
    add<quint16>(bytes, Date);
    add<quint32>(bytes, quint32(crc32(0, reinterpret_cast<const Bytef *>(content.constData()),
                                      uInt(content.size()))));
    add<quint32>(bytes, quint32(content.size()));
    add<quint32>(bytes, quint32(content.size()));
    add<quint16>(bytes, quint16(entry.path.size()));
    add<quint16>(bytes, 0); // no extra field
    return bytes;
}

} // namespace

QByteArray TestArchive::zip(const QList<TestEntry> &entries)
{
    QByteArray bytes;
    QByteArray directory;
    for (const TestEntry &entry : entries) {
        const auto offset = quint32(bytes.size());
        add<quint32>(bytes, LocalHeader);
        bytes += description(entry) + entry.path + contentOf(entry);
        add<quint32>(directory, CentralHeader);
        add<quint16>(directory, MadeBy);
        directory += description(entry);
        add<quint16>(directory, 0); // no comment
        add<quint16>(directory, 0); // first disk
        add<quint16>(directory, 0); // internal attributes
        add<quint32>(directory, quint32(entry.mode) << 16);
        add<quint32>(directory, offset);
        directory += entry.path;
    }
    const auto start = quint32(bytes.size());
    bytes += directory;
    add<quint32>(bytes, EndHeader);
    add<quint16>(bytes, 0);
    add<quint16>(bytes, 0);
    add<quint16>(bytes, quint16(entries.size()));
    add<quint16>(bytes, quint16(entries.size()));
    add<quint32>(bytes, quint32(directory.size()));
    add<quint32>(bytes, start);
    add<quint16>(bytes, 0);
    return bytes;
}

QList<TestEntry> TestArchive::entriesOf(const TestBundle &bundle, const QByteArray &folder)
{
    QList<TestEntry> entries;
    const auto content = bundle.content();
    for (auto file = content.begin(); file != content.end(); ++file)
        entries.append({folder + '/' + file.key(),
                        *file,
                        file.key().startsWith("bin/") ? 0100755U : 0100644U,
                        {}});
    return entries;
}

QByteArray TestArchive::inFormat(const char *format, const QList<TestEntry> &entries)
{
    QByteArray bytes(qsizetype(1024) * 1024, Qt::Uninitialized);
    size_t used = 0;
    archive *writer = archive_write_new();
    archive_write_set_format_by_name(writer, format);
    archive_write_open_memory(writer, bytes.data(), size_t(bytes.size()), &used);
    for (const TestEntry &each : entries) {
        archive_entry *entry = archive_entry_new();
        archive_entry_set_pathname(entry, each.path.constData());
        archive_entry_set_mode(entry, mode_t(each.mode));
        archive_entry_set_size(entry, each.content.size());
        archive_write_header(writer, entry);
        archive_write_data(writer, each.content.constData(), size_t(each.content.size()));
        archive_entry_free(entry);
    }
    archive_write_close(writer);
    archive_write_free(writer);
    bytes.resize(qsizetype(used));
    return bytes;
}
