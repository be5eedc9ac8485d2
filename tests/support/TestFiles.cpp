#include "support/TestFiles.h"

QString projectFile(const QString &path)
{
    return QStringLiteral(VELMORA_PROJECT "/") + path;
}
