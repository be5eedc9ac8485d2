#include "platform/macos/AppBundlesMac.h"

#include "platform/bundles/ShellQuoting.h"
#include "platform/bundles/UpdateError.h"

#include <QByteArrayList>
#include <QFile>
#include <QFileInfo>

#include <optional>

#import <Foundation/Foundation.h>
#import <Security/Security.h>

using namespace Qt::StringLiterals;

namespace {

/// A reference of Core Foundation that is released at the end of its scope.
template <typename T>
class Ref
{
public:
    Ref() = default;
    ~Ref()
    {
        if (m_value)
            CFRelease(m_value);
    }
    Ref(const Ref &) = delete;
    Ref &operator=(const Ref &) = delete;

    T get() const { return m_value; }
    /// For functions that store a reference which the caller has to release.
    T *out() { return &m_value; }
    explicit operator bool() const { return m_value != nullptr; }

private:
    T m_value = nullptr;
};

/// A text of an information dictionary; empty if it is absent or no text.
QString infoText(NSBundle *bundle, NSString *key)
{
    id value = [bundle objectForInfoDictionaryKey:key];
    return [value isKindOfClass:NSString.class] ? QString::fromNSString(value) : QString();
}

QString orElse(const QString &text, const QString &otherwise)
{
    return text.isEmpty() ? otherwise : text;
}

/// The team that has signed the running program; absent for a development build.
std::optional<QString> currentTeamID()
{
    Ref<SecCodeRef> self;
    Ref<SecStaticCodeRef> code;
    Ref<CFDictionaryRef> information;
    if (SecCodeCopySelf(kSecCSDefaultFlags, self.out()) != errSecSuccess ||
        SecCodeCopyStaticCode(self.get(), kSecCSDefaultFlags, code.out()) != errSecSuccess ||
        SecCodeCopySigningInformation(code.get(), kSecCSSigningInformation, information.out()) !=
            errSecSuccess)
        return std::nullopt;
    const void *team = CFDictionaryGetValue(information.get(), kSecCodeInfoTeamIdentifier);
    if (!team || CFGetTypeID(team) != CFStringGetTypeID())
        return std::nullopt;
    return QString::fromCFString(static_cast<CFStringRef>(team));
}

QString requirementText(const QString &identifier, const std::optional<QString> &team)
{
    QString text = u"identifier \""_s + identifier + u'"';
    if (team)
        text += u" and anchor apple generic and certificate leaf[subject.OU] = \""_s + *team + u'"';
    return text;
}

QString textOf(OSStatus status)
{
    Ref<CFStringRef> message;
    *message.out() = SecCopyErrorMessageString(status, nullptr);
    return message ? QString::fromCFString(message.get()) : u"code "_s + QString::number(status);
}

/// Runs a tool on the thread of the caller, which waits for its end.
void run(const QString &path, const QStringList &arguments)
{
    NSTask *task = [[NSTask alloc] init];
    task.executableURL = [NSURL fileURLWithPath:path.toNSString()];
    NSMutableArray<NSString *> *words = [NSMutableArray array];
    for (const QString &argument : arguments)
        [words addObject:argument.toNSString()];
    task.arguments = words;
    NSError *error = nil;
    if (![task launchAndReturnError:&error])
        throw UpdateError::tool(QString::fromNSString(error.localizedDescription));
    [task waitUntilExit];
    if (task.terminationStatus != 0)
        throw UpdateError::tool(QFileInfo(path).fileName() + u" a échoué ("_s +
                                QString::number(task.terminationStatus) + u")."_s);
}

} // namespace

std::unique_ptr<AppBundles> AppBundles::ofThisSystem()
{
    return std::make_unique<AppBundlesMac>();
}

AppBundlesMac::AppBundlesMac()
{
    NSBundle *bundle = NSBundle.mainBundle;
    m_running.path = QString::fromNSString(bundle.bundlePath);
    m_running.version = orElse(infoText(bundle, @"CFBundleShortVersionString"), u"dev"_s);
    m_running.build = orElse(infoText(bundle, @"CFBundleVersion"), u"0"_s);
    m_running.feed = infoText(bundle, @"VMUpdateFeedURL");
    m_identifier = orElse(bundle.bundleIdentifier ? QString::fromNSString(bundle.bundleIdentifier)
                                                  : QString(),
                          u"fr.orvantis.Velmora"_s);
}

bool AppBundlesMac::isSystemAtLeast(qint64 major, qint64 minor) const
{
    const NSOperatingSystemVersion version = {NSInteger(major), NSInteger(minor), 0};
    return [NSProcessInfo.processInfo isOperatingSystemAtLeastVersion:version];
}

void AppBundlesMac::unpack(const QString &archive, const QString &folder) const
{
    run(u"/usr/bin/ditto"_s, {u"-x"_s, u"-k"_s, archive, folder});
}

void AppBundlesMac::verify(const QString &app, const QString &version, const QString &build) const
{
    Ref<SecStaticCodeRef> code;
    NSURL *url = [NSURL fileURLWithPath:app.toNSString()];
    if (SecStaticCodeCreateWithPath((__bridge CFURLRef)url, kSecCSDefaultFlags, code.out()) !=
            errSecSuccess ||
        !code)
        throw UpdateError::signature(u"signature illisible"_s);
    Ref<SecRequirementRef> requirement;
    NSString *text = requirementText(m_identifier, currentTeamID()).toNSString();
    if (SecRequirementCreateWithString((__bridge CFStringRef)text, kSecCSDefaultFlags,
                                       requirement.out()) != errSecSuccess)
        throw UpdateError::signature(u"exigence invalide"_s);
    const OSStatus status = SecStaticCodeCheckValidity(
        code.get(), kSecCSCheckAllArchitectures | kSecCSStrictValidate, requirement.get());
    if (status != errSecSuccess)
        throw UpdateError::signature(textOf(status) +
                                     u". La mise à jour ne vient pas du même développeur."_s);
    // Otherwise a replaced feed could pass an old release off as a new one.
    NSBundle *bundle = [NSBundle bundleWithURL:url];
    if (infoText(bundle, @"CFBundleShortVersionString") != version ||
        infoText(bundle, @"CFBundleVersion") != build)
        throw UpdateError::signature(u"l'archive ne contient pas la version annoncée."_s);
}

bool AppBundlesMac::canReplaceRunning() const
{
    return QFileInfo(QFileInfo(m_running.path).path()).isWritable();
}

QByteArray AppBundlesMac::swapScript(qint64 pid, const QString &app) const
{
    const QByteArray place = QFile::encodeName(m_running.path);
    const QByteArray target = shellQuoted(place);
    const QByteArray backup = shellQuoted(place + ".previous");
    const QByteArray source = shellQuoted(QFile::encodeName(app));
    const QByteArrayList lines = {
        "#!/bin/sh",
        "while /bin/kill -0 " + QByteArray::number(pid) +
            " 2>/dev/null; do /bin/sleep 0.2; done",
        "/bin/rm -rf " + backup,
        "if /bin/mv " + target + ' ' + backup + " && /usr/bin/ditto " + source + ' ' + target +
            "; then",
        "  /bin/rm -rf " + backup,
        "else",
        "  /bin/rm -rf " + target + "; /bin/mv " + backup + ' ' + target,
        "fi",
        "/usr/bin/xattr -dr com.apple.quarantine " + target + " 2>/dev/null",
        "/usr/bin/open " + target,
    };
    return lines.join('\n');
}
