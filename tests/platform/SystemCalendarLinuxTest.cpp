#include "platform/linux/SystemCalendarLinux.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A folder like `/etc`, whose link "localtime" names the time zone.
class SystemCalendarLinuxTest : public testing::Test
{
protected:
    SystemCalendarLinuxTest() { setZone(u"Europe/Paris"_s); }

    /// Replaces the link in one step, as the services that set the time zone do.
    void setZone(const QString &name) const
    {
        namespace fs = std::filesystem;
        const fs::path made = folder.filePath(u"localtime.new"_s).toStdString();
        fs::create_symlink((u"../usr/share/zoneinfo/"_s + name).toStdString(), made);
        fs::rename(made, folder.filePath(u"localtime"_s).toStdString());
    }

    UserCalendar read() const
    {
        const auto link =
            std::filesystem::read_symlink(folder.filePath(u"localtime"_s).toStdString());
        const QString target = QString::fromStdString(link.string());
        return {QLocale(QLocale::French, QLocale::France),
                QTimeZone(target.section(u"zoneinfo/"_s, 1).toLatin1())};
    }

    QTemporaryDir folder;
};

TEST_F(SystemCalendarLinuxTest, ANewTimeZoneIsReadAndToldOnce)
{
    const SystemCalendarLinux calendar([this] { return read(); }, folder.path());
    ASSERT_EQ(calendar.current().zone.id(), "Europe/Paris");
    const QSignalSpy changes(&calendar, &SystemCalendar::changed);
    setZone(u"Asia/Tokyo"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return calendar.current().zone.id() == "Asia/Tokyo"; }));
    EXPECT_EQ(changes.count(), 1);
    setZone(u"America/New_York"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes.count() == 2; }));
    EXPECT_EQ(calendar.current().zone.id(), "America/New_York");
}

TEST_F(SystemCalendarLinuxTest, AnotherFileOfTheFolderChangesNothing)
{
    int reads = 0;
    const SystemCalendarLinux calendar(
        [&] {
            ++reads;
            return read();
        },
        folder.path());
    const QSignalSpy changes(&calendar, &SystemCalendar::changed);
    QFile other(folder.filePath(u"resolv.conf"_s));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    EXPECT_TRUE(QTest::qWaitFor([&] { return reads == 2; }));
    EXPECT_EQ(changes.count(), 0);
}

} // namespace
