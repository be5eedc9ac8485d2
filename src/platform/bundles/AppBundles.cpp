#include "platform/bundles/AppBundles.h"

#include <QDir>
#include <QProcess>

bool AppBundles::start(const QString &script) const
{
    return QProcess::startDetached(QStringLiteral("/bin/sh"), {script}, QDir::rootPath());
}
