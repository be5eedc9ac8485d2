#pragma once

#include "platform/bundles/AppBundles.h"
#include "platform/bundles/linux/OwnBundle.h"
#include "platform/bundles/linux/PackageOwner.h"

/// Bundles that are folders with a signed manifest.
class AppBundlesLinux final : public AppBundles
{
public:
    /// `program` is the path of the running program, `dpkgLists` as in `PackageOwner`.
    explicit AppBundlesLinux(const QString &program,
                             QString dpkgLists = QLatin1StringView(PackageOwner::DpkgLists));

    const RunningApp &running() const override { return m_own.app; }
    bool isSystemAtLeast(qint64 major, qint64 minor) const override;
    void unpack(const QString &archive, const QString &folder) const override;
    void verify(const QString &app, const QString &version, const QString &build) const override;
    bool canReplaceRunning() const override;
    QByteArray swapScript(qint64 pid, const QString &app) const override;

private:
    OwnBundle m_own;
    QString m_dpkgLists;
};
