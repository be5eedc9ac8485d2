#pragma once

#include "platform/bundles/AppBundles.h"

/// Bundles of macOS, signed by a developer's certificate.
class AppBundlesMac final : public AppBundles
{
public:
    AppBundlesMac();

    const RunningApp &running() const override { return m_running; }
    bool isSystemAtLeast(qint64 major, qint64 minor) const override;
    void unpack(const QString &archive, const QString &folder) const override;
    void verify(const QString &app, const QString &version, const QString &build) const override;
    bool canReplaceRunning() const override;
    QByteArray swapScript(qint64 pid, const QString &app) const override;

private:
    RunningApp m_running;
    QString m_identifier;
};
