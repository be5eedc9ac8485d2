#include "platform/bundles/linux/AppBundlesLinux.h"

#include "platform/bundles/UpdateError.h"
#include "platform/bundles/ZipUnpacker.h"
#include "platform/bundles/linux/SwapScript.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <gnu/libc-version.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

std::unique_ptr<AppBundles> AppBundles::ofThisSystem()
{
    return std::make_unique<AppBundlesLinux>(QCoreApplication::applicationFilePath());
}

AppBundlesLinux::AppBundlesLinux(const QString &program, QString dpkgLists)
    : m_own(OwnBundle::of(program)), m_dpkgLists(std::move(dpkgLists))
{
}

bool AppBundlesLinux::isSystemAtLeast(qint64 major, qint64 minor) const
{
    const QStringList parts = QString::fromLatin1(gnu_get_libc_version()).split(u'.');
    return std::pair(qint64(parts.value(0).toInt()), qint64(parts.value(1).toInt())) >=
           std::pair(major, minor);
}

void AppBundlesLinux::unpack(const QString &archive, const QString &folder) const
{
    ZipUnpacker::unpack(archive, folder, {});
}

void AppBundlesLinux::verify(const QString &app, const QString &version, const QString &build) const
{
    if (!m_own.requirement)
        throw UpdateError::signature(u"exigence invalide"_s);
    const BundleManifest manifest = BundleCheck::verified(app, *m_own.requirement);
    // Otherwise a replaced feed could pass an old release off as a new one.
    if (manifest.version != version || manifest.build != build)
        throw UpdateError::signature(u"l'archive ne contient pas la version annoncée."_s);
}

bool AppBundlesLinux::canReplaceRunning() const
{
    const QByteArray parent = QFile::encodeName(QFileInfo(m_own.app.path).path());
    const QByteArray program =
        QFile::encodeName(m_own.app.path + u'/' + QLatin1StringView(BundleManifest::Program));
    // A bundle that was moved or deleted while the program runs is not at its place any more.
    return m_own.isBundle && ::access(parent.constData(), W_OK | X_OK) == 0 &&
           ::access(program.constData(), X_OK) == 0 &&
           !PackageOwner::owns(m_own.app.path, m_dpkgLists);
}

QByteArray AppBundlesLinux::swapScript(qint64 pid, const QString &app) const
{
    return SwapScript::text(pid, m_own.app.path, app);
}
