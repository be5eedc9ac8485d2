#include "ProcessMemory.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

qint64 processMemory(const QString &name)
{
    QFile file(u"/proc/self/smaps_rollup"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QRegularExpression line(u"^"_s + name + u":\\s+(\\d+) kB"_s,
                                  QRegularExpression::MultilineOption);
    return line.match(QString::fromLatin1(file.readAll())).captured(1).toLongLong();
}
