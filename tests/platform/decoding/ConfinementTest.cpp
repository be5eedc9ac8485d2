#include "platform/decoding/ConfinementProbe.h"
#include "platform/decoding/DecodersFixture.h"
#include "platform/decoding/DecodingSystem.h"
#include "support/RunUntil.h"

#include <QFile>
#include <QProcess>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int Everything = OpensFiles | OpensSockets | StartsProcesses | SignalsOthers |
                           ExecutesMemory | TakesMemory | ReadsFolders;

#if __has_feature(address_sanitizer)
/// The sanitizer reserves terabytes of addresses, so they are not limited where it is used.
constexpr int Left = TakesMemory;
#else
constexpr int Left = 0;
#endif

bool startsProcess()
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    if (child > 0)
        ::waitpid(child, nullptr, 0);
    return child > 0;
}

bool maps(size_t bytes, int protection)
{
    void *place =
        ::mmap(nullptr, bytes, protection, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return place != MAP_FAILED;
}

int abilities()
{
    int found = 0;
    const auto note = [&found](bool can, Ability ability) { found |= can ? ability : 0; };
    note(::open("/etc/passwd", O_RDONLY) >= 0, OpensFiles);
    note(::open("/", O_RDONLY | O_DIRECTORY) >= 0, ReadsFolders);
    note(::socket(AF_INET, SOCK_STREAM, 0) >= 0 || ::socket(AF_UNIX, SOCK_STREAM, 0) >= 0,
         OpensSockets);
    note(startsProcess(), StartsProcesses);
    note(::kill(::getppid(), 0) == 0, SignalsOthers);
    note(maps(4096, PROT_READ | PROT_EXEC), ExecutesMemory);
    note(maps(size_t(1) << 30U, PROT_READ | PROT_WRITE), TakesMemory);
    return found;
}

/// Starts a helper, prints its number and dies without ending it.
class DyingParent : public DecodersFixture
{
public:
    [[noreturn]] static void run()
    {
        ManualClock clock;
        Decoders decoders(ownProgram(), clock);
        readsPictures(decoders);
        std::printf("%lld\n", qlonglong(children().value(0)));
        std::fflush(stdout);
        ::raise(SIGKILL);
        std::abort();
    }

private:
    void TestBody() override {}
};

/// Whether a process runs. One that has ended and was not buried by its new parent does not.
bool runs(qint64 process)
{
    QFile file(u"/proc/%1/stat"_s.arg(process));
    if (!file.open(QFile::ReadOnly))
        return false;
    const QByteArray status = file.readAll();
    return status.mid(status.lastIndexOf(')') + 2, 1) != "Z";
}

int probed(const QString &option)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {option});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return process.exitCode();
}

} // namespace

std::optional<int> probeIfAsked(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--die") == 0) {
        const QCoreApplication application(argc, argv);
        DyingParent::run();
    }
    const bool isPlain = argc == 2 && std::strcmp(argv[1], "--probe") == 0;
    const bool isConfined = argc == 2 && std::strcmp(argv[1], "--probe-confined") == 0;
    if (!isPlain && !isConfined)
        return std::nullopt;
    if (isConfined && !DecodingSystem::confine())
        return Everything;
    ::_exit(abilities());
}

TEST(Confinement, AnOrdinaryProcessCanDoWhatIsProbed)
{
    EXPECT_EQ(probed(u"--probe"_s), Everything);
}

TEST(Confinement, AConfinedProcessCannotOpenConnectStartSignalOrTakeMuchMemory)
{
    EXPECT_EQ(probed(u"--probe-confined"_s), Left);
}

TEST(Confinement, AHelperEndsWithTheProgramThatStartedIt)
{
    QProcess parent;
    parent.start(QCoreApplication::applicationFilePath(), {u"--die"_s});
    ASSERT_TRUE(parent.waitForFinished());
    const qint64 helper = parent.readAllStandardOutput().trimmed().toLongLong();
    ASSERT_GT(helper, 0);
    EXPECT_TRUE(runUntil([&] { return !runs(helper); }));
}
