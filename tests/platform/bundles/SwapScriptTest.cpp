#include "platform/bundles/linux/SwapScript.h"

#include "platform/bundles/TestBundle.h"
#include "support/RunUntil.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A program that writes its name into the file that the environment names.
QByteArray programCalled(const QByteArray &name)
{
    return "#!/bin/sh\nprintf " + name + " > \"$VELMORA_MARK\"\n";
}

/// An installed bundle and a new one, both with programs that can be started.
class SwapScriptTest : public testing::Test
{
protected:
    explicit SwapScriptTest(const QString &folder = u"Applications"_s)
        : m_target(root.filePath(folder + u"/Velmora.app"_s))
    {
        writeBundle(m_target, "old");
        writeBundle(m_source, "new");
    }

    void writeBundle(const QString &path, const QByteArray &name) const
    {
        writeFile(path + u"/bin/velmora"_s, programCalled(name), true);
        writeFile(path + u"/bin/velmora-swap"_s, readFile(QStringLiteral(VELMORA_SWAP)), true);
        writeFile(path + u"/lib/lib one.so"_s, name.repeated(50'000));
    }

    /// A process that has ended, so that the script does not wait.
    static qint64 endedProcess()
    {
        QProcess process;
        process.start(u"/bin/true"_s, QStringList());
        const qint64 pid = process.processId();
        process.waitForFinished();
        return pid;
    }
    QByteArray script() const { return SwapScript::text(endedProcess(), m_target, m_source); }

    /// Runs a script to its end, however it ends. `before` is a command of the shell that runs it.
    void run(const QByteArray &text, const QString &before = u":"_s)
    {
        const QString file = root.filePath(u"work/install.sh"_s);
        writeFile(file, text);
        QFile::remove(mark());
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(u"/bin/sh"_s, {u"-c"_s, before + u"; exec /bin/sh \"$0\""_s, file});
        EXPECT_TRUE(process.waitForFinished());
    }
    QProcessEnvironment environment() const
    {
        QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
        result.insert(u"VELMORA_MARK"_s, mark());
        return result;
    }

    QString mark() const { return root.filePath(u"mark"_s); }
    /// The program that the script has started.
    std::string started() const { return readFile(mark()).toStdString(); }
    /// The program that starts from the target now, if the bundle there is complete.
    std::string atTarget() const
    {
        QFile::remove(mark());
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(m_target + u"/bin/velmora"_s, QStringList());
        EXPECT_TRUE(process.waitForFinished());
        const QByteArray name = readFile(mark());
        const bool isComplete =
            readFile(m_target + u"/lib/lib one.so"_s) == name.repeated(50'000) &&
            QFile::exists(m_target + u"/bin/velmora-swap"_s);
        return isComplete ? name.toStdString() : "incomplete";
    }
    QStringList besideTarget() const
    {
        return QDir(QFileInfo(m_target).path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QTemporaryDir root;
    QString m_target;
    QString m_source = root.filePath(u"work/Velmora.app"_s);
};

TEST_F(SwapScriptTest, HasTenLinesAndNoLineBreakAtItsEnd)
{
    EXPECT_EQ(
        SwapScript::text(42, u"/a/Velmora.app"_s, u"/t/n.app"_s).toStdString(),
        "#!/bin/sh\n"
        "while kill -0 42 2>/dev/null; do /bin/sleep 0.2; done\n"
        "/bin/rm -rf '/a/Velmora.app.previous'\n"
        "if /bin/cp -a '/t/n.app' '/a/Velmora.app.previous' && /bin/sync -f "
        "'/a/Velmora.app.previous' "
        "&& '/a/Velmora.app/bin/velmora-swap' '/a/Velmora.app.previous' '/a/Velmora.app'; then\n"
        "  /bin/rm -rf '/a/Velmora.app.previous'\n"
        "else\n"
        "  test -e '/a/Velmora.app' || /bin/mv -T '/a/Velmora.app.previous.old' '/a/Velmora.app'; "
        "/bin/rm -rf '/a/Velmora.app.previous'\n"
        "fi\n"
        "/bin/sync -f '/a/Velmora.app' 2>/dev/null\n"
        "exec '/a/Velmora.app/bin/velmora'");
}

TEST_F(SwapScriptTest, InstallsAndStartsTheNewVersion)
{
    run(script());
    EXPECT_EQ(started(), "new");
    EXPECT_EQ(atTarget(), "new");
    EXPECT_EQ(besideTarget(), QStringList{u"Velmora.app"_s});
}

TEST_F(SwapScriptTest, WaitsForTheEndOfTheOldProcess)
{
    QProcess old;
    old.start(u"/bin/cat"_s, QStringList());
    ASSERT_TRUE(old.waitForStarted());
    writeFile(root.filePath(u"work/install.sh"_s),
              SwapScript::text(old.processId(), m_target, m_source));
    QProcess installation;
    installation.setProcessEnvironment(environment());
    installation.start(u"/bin/sh"_s, {root.filePath(u"work/install.sh"_s)});
    ASSERT_TRUE(installation.waitForStarted());
    const QString pid = QString::number(installation.processId());
    // Its child is the command that waits.
    EXPECT_TRUE(runUntil([&] {
        return !readFile(u"/proc/"_s + pid + u"/task/"_s + pid + u"/children"_s).isEmpty();
    }));
    EXPECT_EQ(installation.state(), QProcess::Running);
    EXPECT_EQ(atTarget(), "old");
    old.closeWriteChannel();
    EXPECT_TRUE(old.waitForFinished());
    EXPECT_TRUE(installation.waitForFinished());
    EXPECT_EQ(atTarget(), "new");
}

TEST_F(SwapScriptTest, KeepsModesAndContent)
{
    run(script());
    EXPECT_TRUE(QFileInfo(m_target + u"/bin/velmora"_s).isExecutable());
    EXPECT_FALSE(QFileInfo(m_target + u"/lib/lib one.so"_s).isExecutable());
    EXPECT_TRUE(QFile::exists(m_source)) << "the copy in the working folder stays";
}

TEST_F(SwapScriptTest, WithoutTheNewVersionTheOldOneStarts)
{
    QDir(m_source).removeRecursively();
    run(script());
    EXPECT_EQ(started(), "old");
    EXPECT_EQ(besideTarget(), QStringList{u"Velmora.app"_s});
}

TEST_F(SwapScriptTest, WithoutTheExchangerTheOldOneStarts)
{
    QFile::remove(m_target + u"/bin/velmora-swap"_s);
    run(script());
    EXPECT_EQ(started(), "old");
    EXPECT_EQ(besideTarget(), QStringList{u"Velmora.app"_s});
}

TEST_F(SwapScriptTest, RemainsOfAnEarlierRunAreRemoved)
{
    writeFile(m_target + u".previous/half"_s, "remains");
    run(script());
    EXPECT_EQ(atTarget(), "new");
    EXPECT_EQ(besideTarget(), QStringList{u"Velmora.app"_s});
}

TEST_F(SwapScriptTest, AnOldVersionThatWasPutAsideComesBack)
{
    QFile::rename(m_target, m_target + u".previous.old"_s);
    run(script());
    EXPECT_EQ(started(), "old");
    EXPECT_EQ(atTarget(), "old");
}

TEST_F(SwapScriptTest, AFileThatCannotBeWrittenCompletelyKeepsTheOldVersion)
{
    // Blocks of 512 bytes.
    run(script(), u"ulimit -f 100"_s);
    EXPECT_EQ(started(), "old");
    EXPECT_EQ(atTarget(), "old");
    EXPECT_EQ(besideTarget(), QStringList{u"Velmora.app"_s});
}

TEST_F(SwapScriptTest, KilledWithItsToolsDuringTheCopyACompleteProgramStays)
{
    writeFile(m_source + u"/lib/large"_s, QByteArray(100'000'000, 'x'));
    writeFile(root.filePath(u"work/install.sh"_s), script());
    QProcess process;
    process.setProcessEnvironment(environment());
    process.setChildProcessModifier([] { ::setsid(); });
    process.start(u"/bin/sh"_s, {root.filePath(u"work/install.sh"_s)});
    // On a fast machine the script may have ended before it is killed.
    EXPECT_TRUE(runUntil([&] {
        return QFile::exists(m_target + u".previous/lib"_s) || process.state() != QProcess::Running;
    }));
    if (process.processId() != 0)
        ::kill(-pid_t(process.processId()), SIGKILL);
    EXPECT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished());
    const std::string stands = atTarget();
    EXPECT_TRUE(stands == "old" || stands == "new") << stands;

    QFile::remove(m_source + u"/lib/large"_s);
    run(script());
    EXPECT_EQ(atTarget(), "new");
    EXPECT_EQ(besideTarget(), QStringList{u"Velmora.app"_s});
}

/// Runs the script on a file system with room for little more than the old bundle, in a private namespace.
constexpr auto OnASmallDisk = R"(
set -e
mount -t tmpfs -o "size=$(($(du -sk "$2" | cut -f1) + 1000))k" tmpfs "$1"
cp -a "$2" "$1/Velmora.app"
/bin/sh "$3"
test ! -e "$1/Velmora.app.previous"
)";

/// True if this machine lets users mount a small file system of their own.
bool canMount()
{
    QProcess process;
    process.start(u"/usr/bin/unshare"_s,
                  {u"--user"_s, u"--map-root-user"_s, u"--mount"_s, u"/bin/true"_s});
    return process.waitForFinished() && process.exitCode() == 0;
}

TEST_F(SwapScriptTest, AFullDiskKeepsTheOldVersion)
{
    if (!canMount()) {
        // The nearest to a full disk that every machine has.
        run(script(), u"ulimit -f 10"_s);
        EXPECT_EQ(started(), "old");
        return;
    }
    const QString disk = root.filePath(u"disk"_s);
    QDir().mkdir(disk);
    writeFile(m_source + u"/lib/large"_s, QByteArray(5'000'000, 'x'));
    const QString file = root.filePath(u"work/install.sh"_s);
    writeFile(file, SwapScript::text(endedProcess(), disk + u"/Velmora.app"_s, m_source));
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(u"/usr/bin/unshare"_s,
                  {u"--user"_s, u"--map-root-user"_s, u"--mount"_s, u"/bin/sh"_s, u"-c"_s,
                   QString::fromLatin1(OnASmallDisk), u"sh"_s, disk, m_target, file});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    EXPECT_EQ(started(), "old");
}

struct StrangePlace
{
    const char *name;
    QString folder;
};

class SwapScriptPlaceTest : public SwapScriptTest, public testing::WithParamInterface<StrangePlace>
{
protected:
    SwapScriptPlaceTest() : SwapScriptTest(GetParam().folder) {}
};

TEST_P(SwapScriptPlaceTest, IsQuoted)
{
    QDir(m_source).removeRecursively();
    m_source = root.filePath(GetParam().folder + u" work/Velmora.app"_s);
    writeBundle(m_source, "new");
    run(script());
    EXPECT_EQ(started(), "new");
    EXPECT_EQ(atTarget(), "new");
    EXPECT_FALSE(QFile::exists(root.filePath(u"work/injected"_s)));
}

INSTANTIATE_TEST_SUITE_P(
    Places, SwapScriptPlaceTest,
    testing::Values(
        StrangePlace{"Blanks", u" two  words "_s}, StrangePlace{"SingleQuote", u"l'app"_s},
        StrangePlace{"OnlyQuotes", u"''"_s}, StrangePlace{"DoubleQuotes", u"\"a\""_s},
        StrangePlace{"LineBreak", u"one\ntwo\n"_s}, StrangePlace{"Command", u"$(touch injected)"_s},
        StrangePlace{"EndOfQuote", u"'; touch injected; '"_s},
        StrangePlace{"Backtick", u"`touch injected`"_s}, StrangePlace{"Variable", u"$HOME"_s},
        StrangePlace{"Backslash", u"a\\'b\\"_s}, StrangePlace{"Option", u"-rf"_s},
        StrangePlace{"Star", u"*"_s}, StrangePlace{"Accents", u"Été à l'œuvre"_s}),
    [](const auto &info) { return std::string(info.param.name); });

/// A point at which the script is killed, and whether the copy fails before.
struct KillPoint
{
    std::string name;
    QByteArray after;
    bool copyFails = false;
    /// What is at the target then.
    std::string atTarget;
};

class SwapScriptKillTest : public SwapScriptTest, public testing::WithParamInterface<KillPoint>
{
protected:
    /// The script with a command that kills the shell after the given part of its text.
    QByteArray killedScript() const
    {
        QByteArray text = script();
        const QByteArray part = QByteArray(GetParam().after).replace("{target}", m_target.toUtf8());
        const qsizetype at = text.indexOf(part);
        EXPECT_GE(at, 0) << part.toStdString();
        const bool isInsideLine = part.endsWith("&& ") || part.endsWith("|| ");
        text.insert(at + part.size(), isInsideLine ? "kill -KILL $$ && " : "kill -KILL $$\n");
        return text;
    }
};

TEST_P(SwapScriptKillTest, ACompleteProgramIsAtTheTarget)
{
    if (GetParam().copyFails)
        QDir(m_source).removeRecursively();
    run(killedScript());
    EXPECT_EQ(started(), "") << "the script was not killed";
    EXPECT_EQ(atTarget(), GetParam().atTarget);

    writeBundle(m_source, "new");
    run(script());
    EXPECT_EQ(atTarget(), "new") << "the next update does not succeed";
    EXPECT_EQ(besideTarget(), QStringList{u"Velmora.app"_s});
}

const QByteArray Wait = "/bin/sleep 0.2; done\n";
const QByteArray Remove = "/bin/rm -rf '{target}.previous'\n";
const QByteArray Copy = "'{target}.previous' && ";
const QByteArray Sync = "/bin/sync -f '{target}.previous' && ";
const QByteArray Exchanged = "'{target}.previous' '{target}'; then\n";

INSTANTIATE_TEST_SUITE_P(
    Points, SwapScriptKillTest,
    testing::Values(
        KillPoint{"BeforeTheWait", "#!/bin/sh\n", false, "old"},
        KillPoint{"AfterTheWait", Wait, false, "old"},
        KillPoint{"AfterRemovingTheRemains", Remove, false, "old"},
        KillPoint{"AfterTheCopy", Copy, false, "old"},
        KillPoint{"AfterTheSync", Sync, false, "old"},
        KillPoint{"AfterTheExchange", Exchanged, false, "new"},
        KillPoint{"AfterDeletingTheOldVersion", Exchanged + "  " + Remove, false, "new"},
        KillPoint{"AtTheBeginningOfElse", "else\n", true, "old"},
        KillPoint{"AfterDeletingAHalfCopy", "'{target}'; " + Remove, true, "old"},
        KillPoint{"AfterTheEndOfIf", "fi\n", false, "new"},
        KillPoint{"AfterTheEndOfIfWithTheOldVersion", "fi\n", true, "old"},
        KillPoint{"BeforeTheStart", "/bin/sync -f '{target}' 2>/dev/null\n", false, "new"}),
    [](const auto &info) { return info.param.name; });

} // namespace
