#include "platform/bundles/BundleManifest.h"

#include "platform/bundles/BundlePath.h"

#include <QByteArrayList>

#include <algorithm>

namespace {

constexpr auto Title = "velmora-bundle 1";
constexpr qsizetype DigitsOfHash = 64;

bool isHex(QByteArrayView text)
{
    return std::ranges::all_of(
        text, [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

/// Values are shown to the user, so they have no control characters.
bool isValue(const QString &text)
{
    return !text.isEmpty() && text.size() <= 500 &&
           std::ranges::all_of(text, [](QChar c) { return c.isPrint(); });
}

/// The lines of a manifest, read one after the other.
class Lines
{
public:
    explicit Lines(const QByteArray &text) : m_lines(text.split('\n')) {}

    bool isAtEnd() const { return m_next >= m_lines.size() - 1; }
    /// True if the text ends with a line break and has been read completely.
    bool isComplete() const { return m_next == m_lines.size() - 1 && m_lines.last().isEmpty(); }

    QByteArray take() { return isAtEnd() ? QByteArray() : m_lines[m_next++]; }
    /// The value of the next line if it has this name.
    std::optional<QByteArray> takeValue(const char *name)
    {
        const QByteArray prefix = QByteArray(name) + ' ';
        if (isAtEnd() || !m_lines[m_next].startsWith(prefix))
            return std::nullopt;
        return m_lines[m_next++].sliced(prefix.size());
    }
    QString takeText(const char *name)
    {
        const QByteArray value = takeValue(name).value_or(QByteArray());
        const QString text = QString::fromUtf8(value);
        return text.toUtf8() == value && isValue(text) ? text : QString();
    }

private:
    QByteArrayList m_lines;
    qsizetype m_next = 0;
};

std::optional<BundleFile> parsedFile(const QByteArray &line)
{
    const QByteArrayList parts = line.split(' ');
    if (parts.size() < 4 || (parts[0] != "755" && parts[0] != "644"))
        return std::nullopt;
    bool isNumber = false;
    const qint64 size = parts[1].toLongLong(&isNumber);
    if (!isNumber || size < 0 || QByteArray::number(size) != parts[1])
        return std::nullopt;
    if (parts[2].size() != DigitsOfHash || !isHex(parts[2]))
        return std::nullopt;
    // The path is the rest of the line and may contain blanks.
    const QByteArray path = parts.sliced(3).join(' ');
    const bool isReserved = path == BundleManifest::Name || path == BundleManifest::SignatureName;
    if (isReserved || BundlePath::faultOf(path) != BundlePath::Fault::None)
        return std::nullopt;
    return BundleFile{path, parts[0] == "755", size, parts[2]};
}

bool isSorted(const QList<BundleFile> &files)
{
    return std::ranges::adjacent_find(
               files, [](const auto &a, const auto &b) { return a.path >= b.path; }) == files.end();
}

} // namespace

std::optional<BundleManifest> BundleManifest::parsed(const QByteArray &text)
{
    Lines lines(text);
    if (text.size() > LargestSize || lines.take() != Title)
        return std::nullopt;
    BundleManifest manifest;
    manifest.identifier = lines.takeText("identifier");
    manifest.version = lines.takeText("version");
    manifest.build = lines.takeText("build");
    manifest.feed = lines.takeText("feed");
    if (const auto key = lines.takeValue("key"))
        manifest.key = QByteArray::fromHex(*key);
    while (const auto line = lines.takeValue("file")) {
        const auto file = parsedFile(*line);
        if (!file)
            return std::nullopt;
        manifest.files.append(*file);
    }
    const bool hasNames =
        !manifest.identifier.isEmpty() && !manifest.version.isEmpty() && !manifest.build.isEmpty();
    const bool isKey = !manifest.key || manifest.key->size() == KeySize;
    if (!lines.isComplete() || !hasNames || !isKey || !isSorted(manifest.files))
        return std::nullopt;
    // Excludes every other spelling of the same content.
    return manifest.text() == text ? std::optional(manifest) : std::nullopt;
}

QByteArray BundleManifest::text() const
{
    QByteArray text = QByteArray(Title) + '\n';
    const auto add = [&text](const char *name, const QByteArray &value) {
        text += QByteArray(name) + ' ' + value + '\n';
    };
    add("identifier", identifier.toUtf8());
    add("version", version.toUtf8());
    add("build", build.toUtf8());
    if (!feed.isEmpty())
        add("feed", feed.toUtf8());
    if (key)
        add("key", key->toHex());
    for (const BundleFile &file : files)
        add("file", QByteArray(file.isExecutable ? "755 " : "644 ") +
                        QByteArray::number(file.size) + ' ' + file.sha256 + ' ' + file.path);
    return text;
}
