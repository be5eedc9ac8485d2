#include "platform/Preferences.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class PreferencesTest : public testing::Test
{
protected:
    void writeFile(const QByteArray &content) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /// Starts a process that writes to the same file.
    void startWriter(QProcess &process, const QStringList &arguments) const
    {
        process.start(QStringLiteral(VELMORA_PREFERENCES_WRITER), QStringList(path) + arguments);
        ASSERT_TRUE(process.waitForStarted());
    }

    /// What is on the disk under the name; 0 when there is nothing.
    int number(const QString &key) const
    {
        return Preferences(path).text(key).value_or(u"0"_s).toInt();
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"Velmora.ini"_s);
};

TEST_F(PreferencesTest, anEmptyStoreHoldsNothing)
{
    const Preferences preferences(path);

    EXPECT_FALSE(preferences.text(u"layout"_s));
    EXPECT_FALSE(preferences.flag(u"showCompleted"_s));
    EXPECT_FALSE(preferences.texts(u"favoriteProjects"_s));
    EXPECT_FALSE(preferences.bytes(u"display"_s));
}

TEST_F(PreferencesTest, aSecondInstanceReadsWhatTheFirstWroteWhileTheFirstStillLives)
{
    Preferences writer(path);
    writer.setText(u"layout"_s, u"board"_s);
    writer.setFlag(u"showCompleted"_s, false);
    writer.setFlag(u"demoMode"_s, true);
    writer.setTexts(u"favoriteProjects"_s, {u"WEB"_s, u"ÉTÉ, hiver"_s});
    writer.setBytes(u"display"_s, QByteArray("{\"key\":true}\0\xff", 14));

    const Preferences reader(path);
    EXPECT_EQ(reader.text(u"layout"_s), u"board"_s);
    EXPECT_EQ(reader.flag(u"showCompleted"_s), false);
    EXPECT_EQ(reader.flag(u"demoMode"_s), true);
    EXPECT_EQ(reader.texts(u"favoriteProjects"_s), QStringList({u"WEB"_s, u"ÉTÉ, hiver"_s}));
    EXPECT_EQ(reader.bytes(u"display"_s), QByteArray("{\"key\":true}\0\xff", 14));
}

TEST_F(PreferencesTest, aWriteCountsAtOnceAndDoesNotWaitForADiskThatIsBusy)
{
    QLockFile busy(path + u".lock"_s);
    ASSERT_TRUE(busy.lock());
    Preferences preferences(path);
    preferences.setText(u"layout"_s, u"board"_s);
    EXPECT_EQ(preferences.text(u"layout"_s), u"board"_s);
    EXPECT_FALSE(QFile::exists(path));
    preferences.setText(u"layout"_s, u"list"_s);
    preferences.setText(u"grouping"_s, u"project"_s);
    busy.unlock();

    const Preferences reader(path);
    EXPECT_EQ(reader.text(u"layout"_s), u"list"_s);
    EXPECT_EQ(reader.text(u"grouping"_s), u"project"_s);
}

TEST_F(PreferencesTest, aWriteReachesTheDiskThoughNothingElseHappens)
{
    Preferences preferences(path);
    preferences.setText(u"layout"_s, u"board"_s);
    const auto content = [this] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return content().contains("layout=board"); }));
}

TEST_F(PreferencesTest, whatTheDiskRefusedIsWrittenWithTheNextValueAndAtTheEnd)
{
    writeFile("a file");
    const QString blocked = path + u"/folder/Velmora.ini"_s;
    {
        Preferences preferences(blocked);
        preferences.setText(u"layout"_s, u"board"_s);
        ASSERT_FALSE(Preferences(blocked).text(u"grouping"_s));
        QFile::remove(path);
        preferences.setText(u"grouping"_s, u"project"_s);
        EXPECT_EQ(Preferences(blocked).text(u"layout"_s), u"board"_s);
        ASSERT_TRUE(QDir(path).removeRecursively());
        writeFile("a file");
        preferences.setText(u"layout"_s, u"list"_s);
        ASSERT_FALSE(Preferences(blocked).text(u"density"_s));
        QFile::remove(path);
    }
    EXPECT_EQ(Preferences(blocked).text(u"layout"_s), u"list"_s);
}

TEST_F(PreferencesTest, twoProcessesLeaveAllThatTheyWrote)
{
    constexpr int count = 100;
    QProcess one;
    QProcess other;
    startWriter(one, {u"one"_s, QString::number(count)});
    startWriter(other, {u"other"_s, QString::number(count)});
    for (QProcess *process : {&one, &other}) {
        ASSERT_TRUE(process->waitForFinished());
        EXPECT_EQ(process->exitCode(), 0);
    }
    const Preferences reader(path);
    for (int i = 1; i <= count; ++i) {
        EXPECT_EQ(reader.text(u"one%1"_s.arg(i)), QString::number(i));
        EXPECT_EQ(reader.text(u"other%1"_s.arg(i)), QString::number(i));
    }
}

TEST_F(PreferencesTest, aProcessThatDiesLeavesAWholeFileInWhichNoLaterValueStandsWithoutTheEarlier)
{
    QProcess process;
    startWriter(process, {});
    ASSERT_TRUE(QTest::qWaitFor([this] { return QFile::exists(path); }));
    process.kill();
    ASSERT_TRUE(process.waitForFinished());

    const int first = number(u"first"_s);
    EXPECT_GT(first, 0);
    EXPECT_LE(number(u"second"_s), first);
    EXPECT_GE(number(u"second"_s), first - 1);
    Preferences(path).setText(u"first"_s, u"-7"_s);
    EXPECT_EQ(number(u"first"_s), -7);
}

TEST_F(PreferencesTest, listsOfOneAndOfNoTextStayLists)
{
    Preferences writer(path);
    writer.setTexts(u"one"_s, {u"WEB"_s});
    writer.setTexts(u"none"_s, {});
    writer.setTexts(u"blank"_s, {QString(u""_s)});

    const Preferences reader(path);
    EXPECT_EQ(reader.texts(u"one"_s), QStringList(u"WEB"_s));
    EXPECT_EQ(reader.texts(u"none"_s), QStringList());
    EXPECT_EQ(reader.texts(u"blank"_s), QStringList(u""_s));
}

TEST_F(PreferencesTest, textsKeepTheirCharacters)
{
    const QStringList odd = {u"@Invalid()"_s,
                             u"a, b; c=d"_s,
                             u"\"quoted\" \\ slash"_s,
                             u"ligne\nsuivante"_s,
                             u"  bords  "_s,
                             u"🎉 é"_s,
                             u""_s};
    Preferences writer(path);
    for (int i = 0; i < odd.size(); ++i)
        writer.setText(u"text.%1"_s.arg(i), odd[i]);

    const Preferences reader(path);
    for (int i = 0; i < odd.size(); ++i)
        EXPECT_EQ(reader.text(u"text.%1"_s.arg(i)), odd[i]) << odd[i].toStdString();
}

TEST_F(PreferencesTest, aValueOfAnotherKindReadsAsAbsent)
{
    Preferences writer(path);
    writer.setText(u"text"_s, u"board"_s);
    writer.setTexts(u"texts"_s, {u"A"_s, u"B"_s});
    writer.setBytes(u"bytes"_s, "{}");

    const Preferences fresh(path);
    for (const Preferences *reader : {&fresh, static_cast<const Preferences *>(&writer)}) {
        EXPECT_FALSE(reader->flag(u"text"_s));
        EXPECT_FALSE(reader->texts(u"text"_s));
        EXPECT_FALSE(reader->bytes(u"text"_s));
        EXPECT_FALSE(reader->text(u"texts"_s));
        EXPECT_FALSE(reader->flag(u"texts"_s));
        EXPECT_FALSE(reader->text(u"bytes"_s));
        EXPECT_FALSE(reader->texts(u"bytes"_s));
    }
}

TEST_F(PreferencesTest, aListWithAnEntryThatIsNoTextReadsAsAbsent)
{
    Preferences preferences(path);
    preferences.setBytes(u"favoriteProjects"_s, "[\"WEB\", 3]");

    EXPECT_FALSE(preferences.texts(u"favoriteProjects"_s));
}

TEST_F(PreferencesTest, aBrokenFileHoldsNothingAndCanBeWritten)
{
    static constexpr char Broken[] = "\x00\xff\xfe[[[ not = \n @@ \x80 settings\nlayout";
    writeFile(QByteArray(Broken, sizeof Broken - 1));
    {
        Preferences preferences(path);
        EXPECT_FALSE(preferences.text(u"layout"_s));
        preferences.setText(u"layout"_s, u"board"_s);
        EXPECT_EQ(preferences.text(u"layout"_s), u"board"_s);
    }
    EXPECT_EQ(Preferences(path).text(u"layout"_s), u"board"_s);
}

TEST_F(PreferencesTest, aValueThatTheFormatCannotReadIsAbsentAndTheOthersStand)
{
    writeFile("[General]\ndisplay=@Variant(\\0\\0\\0\\x7f broken)\nlayout=board\n");
    const Preferences preferences(path);

    EXPECT_FALSE(preferences.bytes(u"display"_s));
    EXPECT_EQ(preferences.text(u"layout"_s), u"board"_s);
}

TEST_F(PreferencesTest, anUnwritablePlaceKeepsTheValueForTheRun)
{
    // A file in place of the folder makes writing fail for every user, including root.
    writeFile("a file");
    Preferences preferences(path + u"/folder/Velmora.ini"_s);
    preferences.setText(u"layout"_s, u"board"_s);

    EXPECT_EQ(preferences.text(u"layout"_s), u"board"_s);
}

TEST_F(PreferencesTest, aMissingFolderIsMade)
{
    const QString deep = folder.filePath(u"a/b/Velmora.ini"_s);
    Preferences(deep).setFlag(u"demoMode"_s, true);

    EXPECT_EQ(Preferences(deep).flag(u"demoMode"_s), true);
}

} // namespace
