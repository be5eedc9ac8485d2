/// Makes and checks releases; see `usage`. The secret key is read from the standard input, so that it appears neither in
/// the list of processes nor in a file of this program.
#include "platform/bundles/BundleSignature.h"
#include "update/tool/ReleaseWriter.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTimeZone>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Usage = R"(Usage: velmora-release <command> [options] <files>

  public-key                     prints the public key; the secret key is on the standard input
  manifest <bundle>              writes the manifest and signs it; the secret key is on the standard input
  archive <bundle> <archive>     packs the bundle
  feed <archive> <notes> <feed>  writes the feed; <notes> is a file with Markdown
  check <feed> <public key>      checks feed and archive as an installed Velmora would do)";

QByteArray standardInput()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        throw Failure(u"Cannot read the standard input."_s);
    return input.readAll();
}

void print(const QByteArray &text)
{
    std::fputs((text + '\n').constData(), stdout);
}

class Command
{
public:
    Command()
    {
        m_parser.setApplicationDescription(QString::fromLatin1(Usage));
        m_parser.addHelpOption();
        m_parser.addPositionalArgument(u"command"_s, u"what to do"_s);
        m_parser.addPositionalArgument(u"files"_s, u"the files of the command"_s);
        m_parser.addOptions(
            {{u"identifier"_s, u"The identifier of the application."_s, u"name"_s,
              u"fr.orvantis.Velmora"_s},
             {u"release-version"_s, u"The version of the release."_s, u"version"_s},
             {u"build"_s, u"The build number of the release."_s, u"number"_s},
             {u"feed-address"_s, u"The address of the feed."_s, u"address"_s},
             {u"minimum"_s, u"The lowest version of the C library."_s, u"version"_s},
             {u"time"_s, u"The time of the release, in seconds since 1970."_s, u"seconds"_s,
              u"0"_s}});
        m_parser.process(QCoreApplication::arguments());
    }

    void run() const
    {
        const QString command = m_parser.positionalArguments().value(0);
        if (command == "public-key"_L1)
            print(BundleSignature::publicKey(ReleaseWriter::seedFrom(standardInput())).toHex());
        else if (command == "manifest"_L1)
            ReleaseWriter::writeManifest(file(1), names(),
                                         ReleaseWriter::seedFrom(standardInput()));
        else if (command == "archive"_L1)
            ReleaseWriter::writeArchive(file(1), file(2), time());
        else if (command == "feed"_L1)
            writeFeed();
        else if (command == "check"_L1)
            ReleaseWriter::check(file(1), QDir::tempPath(), m_parser.value(u"identifier"_s),
                                 QByteArray::fromHex(file(2).toLatin1()));
        else
            throw Failure(QString::fromLatin1(Usage));
    }

private:
    QString file(int index) const
    {
        const QString name = m_parser.positionalArguments().value(index);
        if (name.isEmpty())
            throw Failure(QString::fromLatin1(Usage));
        return name;
    }
    ReleaseWriter::Names names() const
    {
        return {.identifier = m_parser.value(u"identifier"_s),
                .version = m_parser.value(u"release-version"_s),
                .build = m_parser.value(u"build"_s),
                .feed = m_parser.value(u"feed-address"_s)};
    }
    QDateTime time() const
    {
        return QDateTime::fromSecsSinceEpoch(m_parser.value(u"time"_s).toLongLong(),
                                             QTimeZone::utc());
    }
    void writeFeed() const
    {
        QFile notes(file(2));
        QFile feed(file(3));
        if (!notes.open(QIODevice::ReadOnly))
            throw Failure(u"Cannot read "_s + notes.fileName());
        const ReleaseInfo release =
            ReleaseWriter::releaseOf(file(1), names(), m_parser.value(u"minimum"_s), time(),
                                     QString::fromUtf8(notes.readAll()).trimmed());
        const QByteArray text = release.encoded() + '\n';
        if (!feed.open(QIODevice::WriteOnly) || feed.write(text) != text.size())
            throw Failure(u"Cannot write "_s + feed.fileName());
    }

    QCommandLineParser m_parser;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    try {
        Command().run();
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "velmora-release: %s\n", error.what());
        return 1;
    }
}
