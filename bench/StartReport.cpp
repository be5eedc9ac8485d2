#include "StartReport.h"

#include "ProcessMemory.h"
#include "SwapWatch.h"

#include <QJsonDocument>

#include <cstdio>

using namespace Qt::StringLiterals;

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
    m_report[u"rss"_s] = processMemory(u"Rss"_s);
    m_report[u"pss"_s] = processMemory(u"Pss"_s);
    std::puts(QJsonDocument(m_report).toJson(QJsonDocument::Compact).constData());
}
