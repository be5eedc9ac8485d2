#include "StartReport.h"

#include "FrameWatch.h"

#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// A size that the kernel tells of this process, in kilobytes.
qint64 kilobytes(const QString &name)
{
    QFile file(u"/proc/self/smaps_rollup"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QRegularExpression line(u"^"_s + name + u":\\s+(\\d+) kB"_s,
                                  QRegularExpression::MultilineOption);
    return line.match(QString::fromLatin1(file.readAll())).captured(1).toLongLong();
}

} // namespace

StartReport::StartReport(const QStringList &arguments) : m_start(arguments.value(1).toLongLong())
{
    if (m_start == 0)
        qFatal("The first argument is the instant of the start.");
}

void StartReport::mark(const QString &point)
{
    mark(point, monotonicNow());
}

void StartReport::mark(const QString &point, qint64 instant)
{
    if (!m_report.contains(point))
        m_report[point] = instant - m_start;
}

void StartReport::print(const QString &renderer)
{
    m_report[u"renderer"_s] = renderer;
    m_report[u"rss"_s] = kilobytes(u"Rss"_s);
    m_report[u"pss"_s] = kilobytes(u"Pss"_s);
    std::puts(QJsonDocument(m_report).toJson(QJsonDocument::Compact).constData());
}
