#pragma once

#include "platform/bundles/AppBundles.h"
#include "platform/bundles/UpdateError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <optional>

/// Bundles without content: unpacking creates the folders that a test names, and every check has the result that a test
/// sets.
class FakeBundles final : public AppBundles
{
public:
    explicit FakeBundles(RunningApp app) : m_running(std::move(app)) {}

    const RunningApp &running() const override { return m_running; }
    bool isSystemAtLeast(qint64 major, qint64 minor) const override
    {
        return std::pair(systemMajor, systemMinor) >= std::pair(major, minor);
    }
    void unpack(const QString &archive, const QString &folder) const override
    {
        if (unpackFailure)
            throw UpdateError(*unpackFailure);
        EXPECT_TRUE(QFile::exists(archive));
        for (const QString &name : unpacked)
            QDir(folder).mkpath(name);
    }
    void verify(const QString &app, const QString &version, const QString &build) const override
    {
        verified = app;
        verifiedRelease = version + u' ' + build;
        if (verifyFailure)
            throw UpdateError(*verifyFailure);
    }
    bool canReplaceRunning() const override { return canReplace; }
    QByteArray swapScript(qint64 pid, const QString &app) const override
    {
        return QByteArray::number(pid) + ' ' + app.toUtf8();
    }
    bool start(const QString &script) const override
    {
        started = script;
        return canStart;
    }

    qint64 systemMajor = 14;
    qint64 systemMinor = 2;
    QStringList unpacked = {QStringLiteral("Velmora.app")};
    std::optional<UpdateError> unpackFailure;
    std::optional<UpdateError> verifyFailure;
    bool canReplace = true;
    bool canStart = true;
    /// What the updater has asked for. Written by the updater's threads, read after they have ended.
    mutable QString verified;
    mutable QString verifiedRelease;
    mutable QString started;

private:
    RunningApp m_running;
};
