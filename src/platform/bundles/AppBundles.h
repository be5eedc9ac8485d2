#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// What the running program knows about itself.
struct RunningApp
{
    /// The absolute path of the application's bundle; for a program that runs outside a bundle, the folder that
    /// contains it.
    QString path;
    /// The version that users see; "dev" outside a bundle.
    QString version = QStringLiteral("dev");
    /// The build number; "0" outside a bundle.
    QString build = QStringLiteral("0");
    /// The address of the feed that the packaging has built in; empty if there is none.
    QString feed;

    bool operator==(const RunningApp &) const = default;
};

/// The application bundles of the operating system: what the running one is, and how another one is unpacked, verified
/// and put in its place. Operations on files may be called on any thread and block; the others belong to the UI thread.
class AppBundles
{
public:
    AppBundles() = default;
    virtual ~AppBundles() = default;
    AppBundles(const AppBundles &) = delete;
    AppBundles &operator=(const AppBundles &) = delete;

    /// Creates the implementation for the operating system that the program runs on.
    static std::unique_ptr<AppBundles> ofThisSystem();

    /// The running program, as it was when this object was made.
    virtual const RunningApp &running() const = 0;
    /// True if the version of the system is at least `major`.`minor`: the version of macOS, or on Linux that of the C
    /// library, which decides whether a program starts.
    virtual bool isSystemAtLeast(qint64 major, qint64 minor) const = 0;

    /// Unpacks an archive into an existing empty folder. Writes nothing outside that folder. Fails with `UpdateError`.
    virtual void unpack(const QString &archive, const QString &folder) const = 0;
    /// Fails with `UpdateError::Kind::Signature` unless the application at `app` is unchanged since its maker has
    /// signed it, has the identifier of the running program and, if the running program is signed, the same maker, and
    /// is the release with this version and build. The requirement is derived from the running program alone.
    virtual void verify(const QString &app, const QString &version, const QString &build) const = 0;

    /// True if the running program is a bundle that the user can replace in its folder at this moment.
    virtual bool canReplaceRunning() const = 0;
    /// The shell script that waits for the end of the process `pid`, puts the application at `app` in the place of the
    /// running one, and starts what is there afterwards: the new application, or after a failure the old one.
    virtual QByteArray swapScript(qint64 pid, const QString &app) const = 0;
    /// Starts `/bin/sh` with a script as its only argument, and does not wait for it. Returns whether it was started.
    virtual bool start(const QString &script) const;
};
