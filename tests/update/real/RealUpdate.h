#pragma once

#include "platform/bundles/TestArchive.h"
#include "platform/bundles/linux/AppBundlesLinux.h"
#include "simulator/server/RawServer.h"
#include "support/ManualClock.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"
#include "update/HttpTransport.h"
#include "update/Updater.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// An installed bundle of version 1.4 (build 121), signed by the maker, and a server with TLS that offers a feed and an
/// archive.
class RealUpdate : public testing::Test
{
protected:
    using State = UpdateState;

    RealUpdate()
    {
        TestBundle installedBundle = bundleOf(QStringLiteral("1.4"), QStringLiteral("121"));
        installedBundle.manifest.feed = feedAddress();
        installedBundle.write(installed());
        QDir().mkpath(temporary());
        server.answerBy([this](const RawRequest &request) { return answerTo(request); });
        open();
    }

    /// A genuine bundle.
    static TestBundle bundleOf(const QString &version, const QString &build)
    {
        TestBundle bundle;
        bundle.manifest.version = version;
        bundle.manifest.build = build;
        bundle.files["lib/libone.so"] = "library of " + build.toUtf8();
        return bundle;
    }
    static QByteArray archiveOf(const TestBundle &bundle)
    {
        return TestArchive::zip(TestArchive::entriesOf(bundle));
    }
    static QByteArray sha256(const QByteArray &content)
    {
        return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
    }

    /// Offers an archive as this release, with its true hash.
    void offer(const QString &version, const QString &build, const QByteArray &bytes)
    {
        archive = RawAnswer::http(200, bytes);
        release.version = version;
        release.build = build;
        release.url = QStringLiteral("files/Velmora.zip");
        release.sha256 = QString::fromLatin1(sha256(bytes));
        feed = RawAnswer::json(release.encoded());
    }
    /// Offers a genuine release.
    void offer(const QString &version, const QString &build)
    {
        offer(version, build, archiveOf(bundleOf(version, build)));
    }

    void open(qint64 largestArchive = HttpTransport::LargestArchive)
    {
        updater.reset();
        transport.emplace(clock, temporary(), largestArchive);
        updater.emplace(UpdaterContext{.clock = clock,
                                       .preferences = preferences,
                                       .transport = *transport,
                                       .bundles = std::make_shared<AppBundlesLinux>(
                                           installed() + QStringLiteral("/bin/velmora"),
                                           root.filePath(QStringLiteral("dpkg"))),
                                       .quit = [] {},
                                       .temporaryFolder = temporary()});
    }
    State check()
    {
        const TaskResult<void> result(updater->check(Updater::Asker::User));
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return updater->state();
    }
    /// The text of the failure that a check ends with; empty if it does not.
    std::string failure() { return check().failureOrEmpty().toStdString(); }

    RawAnswer answerTo(const RawRequest &request) const
    {
        if (request.target == "/velmora/latest.json")
            return feed;
        return request.target == "/velmora/files/Velmora.zip" ? archive : RawAnswer::http(404, {});
    }
    QString feedAddress() const
    {
        return server.url().toString() + QStringLiteral("/velmora/latest.json");
    }
    QString installed() const { return root.filePath(QStringLiteral("Applications/Velmora.app")); }
    QString temporary() const { return root.filePath(QStringLiteral("tmp")); }
    QStringList temporaryFiles() const
    {
        return QDir(temporary()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir root;
    ManualClock clock;
    Certificates::TrustedAuthority trusted;
    RawServer server{Certificates::Kind::Good};
    Preferences preferences{root.filePath(QStringLiteral("preferences.ini"))};
    /// What the server sends.
    RawAnswer feed = RawAnswer::http(404, {});
    RawAnswer archive = RawAnswer::http(404, {});
    ReleaseInfo release;
    std::optional<HttpTransport> transport;
    std::optional<Updater> updater;
};
