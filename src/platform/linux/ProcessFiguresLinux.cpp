#include "platform/ProcessFigures.h"

#include <QByteArrayList>
#include <QFile>

#include <ctime>
#include <unistd.h>

namespace {

// The places of the start of the process in /proc/self/stat behind the name, and of the pages in RAM in statm.
constexpr qsizetype StartField = 19;
constexpr qsizetype ResidentField = 1;
constexpr qint64 MillisecondsPerSecond = 1000;
constexpr qint64 NanosecondsPerMillisecond = 1'000'000;

std::optional<qint64> field(const QByteArray &text, qsizetype index)
{
    bool isNumber = false;
    const qint64 value = text.simplified().split(' ').value(index).toLongLong(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

std::optional<std::chrono::milliseconds> ProcessFigures::age()
{
    const QByteArray stat = contentOf(QStringLiteral("/proc/self/stat"));
    // The name of the process stands in brackets and may contain blanks.
    const auto ticks = field(stat.mid(stat.lastIndexOf(')') + 1), StartField);
    timespec sinceBoot{};
    if (!ticks || clock_gettime(CLOCK_BOOTTIME, &sinceBoot) != 0)
        return {};
    const qint64 start = *ticks * MillisecondsPerSecond / sysconf(_SC_CLK_TCK);
    const qint64 now =
        sinceBoot.tv_sec * MillisecondsPerSecond + sinceBoot.tv_nsec / NanosecondsPerMillisecond;
    return std::chrono::milliseconds(now - start);
}

std::optional<qint64> ProcessFigures::residentBytes()
{
    const auto pages = field(contentOf(QStringLiteral("/proc/self/statm")), ResidentField);
    return pages ? std::optional(*pages * sysconf(_SC_PAGESIZE)) : std::nullopt;
}
