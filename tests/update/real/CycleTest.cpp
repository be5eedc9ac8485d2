#include "update/real/RealUpdate.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

/// A bundle with a real program that updates itself from the server, with the real script.
class CycleTest : public RealUpdate
{
protected:
    CycleTest()
    {
        QDir(installed()).removeRecursively();
        writeBundle(u"1.4"_s, u"121"_s).write(place());
    }

    TestBundle writeBundle(const QString &version, const QString &build) const
    {
        TestBundle bundle = bundleOf(version, build);
        bundle.files["bin/velmora"] = readFile(QStringLiteral(VELMORA_PROBE));
        bundle.files["bin/velmora-swap"] = readFile(QStringLiteral(VELMORA_SWAP));
        bundle.manifest.feed = feedAddress();
        return bundle;
    }
    /// A folder with a name that a shell could misunderstand.
    QString place() const { return root.filePath(u"l'app \"de\" test\n$HOME/Velmora.app"_s); }
    QString mark() const { return root.filePath(u"mark"_s); }

    void launch()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"VELMORA_MARK"_s, mark());
        environment.insert(u"VELMORA_PREFERENCES"_s, root.filePath(u"probe.ini"_s));
        environment.insert(u"TMPDIR"_s, temporary());
        program.setProcessEnvironment(environment);
        program.start(place() + u"/bin/velmora"_s, QStringList());
    }
    /// The lines that the programs have written, once there are so many.
    QStringList said(qsizetype count)
    {
        const auto lines = [this] {
            return QString::fromUtf8(readFile(mark())).split(u'\n', Qt::SkipEmptyParts);
        };
        // A whole update writes some megabytes to the disk, which may be busy.
        constexpr int mostWaits = 6;
        for (int i = 0; i < mostWaits && lines().size() < count; ++i)
            runUntil([&] { return lines().size() >= count; });
        return lines();
    }

    QProcess program;
};

TEST_F(CycleTest, AProgramReplacesItselfAndAnnouncesTheRelease)
{
    release.notes = u"Tout est plus rapide"_s;
    offer(u"1.5"_s, u"122"_s, archiveOf(writeBundle(u"1.5"_s, u"122"_s)));
    launch();
    EXPECT_EQ(said(2), (QStringList{u"1.4 "_s, u"1.5 Tout est plus rapide"_s}));
    EXPECT_EQ(readFile(place() + u"/lib/libone.so"_s), "library of 122");
    EXPECT_TRUE(runUntil([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_FALSE(QFile::exists(place() + u".previous"_s));
}

TEST_F(CycleTest, AProgramKeepsRunningWhenTheUpdateIsForged)
{
    TestBundle forged = writeBundle(u"1.5"_s, u"122"_s);
    forged.seed = TestBundle::strangersSeed();
    offer(u"1.5"_s, u"122"_s, archiveOf(forged));
    launch();
    EXPECT_EQ(said(2),
              (QStringList{u"1.4 "_s,
                           u"Signature refusée : la clé de signature est différente. La mise à "
                           "jour ne vient pas du même développeur."_s}));
    EXPECT_TRUE(runUntil([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(readFile(place() + u"/lib/libone.so"_s), "library of 121");
}

} // namespace
