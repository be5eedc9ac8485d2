#include "state/Uploads.h"

#include "support/ManualClock.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const auto Key = u"WEB-1"_s;
const QStringList One{u"a.txt"_s};
const QStringList Two{u"b.txt"_s, u"c.txt"_s};

class UploadsTest : public testing::Test
{
protected:
    std::optional<double> fraction() const { return uploads.ofIssue(Key).value(0).fraction(); }

    ManualClock clock;
    Uploads uploads;
    QSignalSpy changes{&uploads, &Uploads::changed};
};

} // namespace

TEST_F(UploadsTest, AnUploadIsListedForAsLongAsItRuns)
{
    Uploads::Running first = uploads.begin(Key, Two, clock);
    const Uploads::Running second = uploads.begin(Key, One, clock);
    const Uploads::Running other = uploads.begin(u"WEB-2"_s, Two, clock);
    EXPECT_EQ(uploads.fileCount(Key), 3);
    EXPECT_EQ(uploads.ofIssue(Key).value(0), first->upload());
    EXPECT_EQ(uploads.ofIssue(Key).value(1), second->upload());

    first.reset();
    EXPECT_EQ(uploads.fileCount(Key), 1);
    EXPECT_EQ(uploads.ofIssue(Key), QList{second->upload()});
    EXPECT_EQ(changes.size(), 4);
    EXPECT_EQ(changes.last(), QVariantList{Key});
}

TEST_F(UploadsTest, NothingIsKnownOfTheProgressAtFirst)
{
    const Uploads::Running upload = uploads.begin(Key, One, clock);
    EXPECT_EQ(fraction(), std::nullopt);
    upload->observer()({0, 200});
    EXPECT_EQ(fraction(), 0.0);
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(UploadsTest, ProgressIsAnnouncedAtOnceAndThenAtItsPace)
{
    const Uploads::Running upload = uploads.begin(Key, One, clock);
    const UploadObserver observer = upload->observer();
    changes.clear();
    observer({20, 200});
    EXPECT_EQ(fraction(), 0.1);
    observer({40, 200});
    observer({100, 200});
    EXPECT_EQ(fraction(), 0.1);
    EXPECT_EQ(changes.size(), 1);
    clock.advance(Uploads::Pace);
    EXPECT_EQ(fraction(), 0.5);
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(UploadsTest, TheLastProgressIsNotLost)
{
    const Uploads::Running upload = uploads.begin(Key, One, clock);
    upload->observer()({199, 200});
    upload->observer()({200, 200});
    clock.advance(Uploads::Pace);
    EXPECT_EQ(fraction(), 1.0);
    changes.clear();
    clock.advance(10 * Uploads::Pace);
    EXPECT_TRUE(changes.isEmpty());
}

TEST_F(UploadsTest, CancellingStopsThisUploadOnly)
{
    const Uploads::Running first = uploads.begin(Key, One, clock);
    const Uploads::Running second = uploads.begin(Key, One, clock);
    uploads.cancel(second->upload().id);
    EXPECT_FALSE(first->stop().stop_requested());
    EXPECT_TRUE(second->stop().stop_requested());
}

TEST_F(UploadsTest, AnUploadMayEndWhileItIsBeingCancelled)
{
    Uploads::Running upload = uploads.begin(Key, One, clock);
    const quint64 id = upload->upload().id;
    const std::stop_callback ending(upload->stop(), [&upload] { upload.reset(); });
    uploads.cancel(id);
    EXPECT_EQ(uploads.fileCount(Key), 0);
    uploads.cancel(id);
    EXPECT_EQ(uploads.fileCount(Key), 0);
}

TEST_F(UploadsTest, WhatRunsOnAfterItsSessionIsForgotten)
{
    const Uploads::Running upload = uploads.begin(Key, One, clock);
    upload->observer()({1, 200});
    upload->observer()({2, 200});
    uploads.forgetAll();
    EXPECT_EQ(uploads.fileCount(Key), 0);
    changes.clear();
    upload->observer()({3, 200});
    clock.advance(Uploads::Pace);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_FALSE(upload->stop().stop_requested());
}

TEST_F(UploadsTest, AnUploadMayOutliveTheList)
{
    auto list = std::make_unique<Uploads>();
    const Uploads::Running upload = list->begin(Key, One, clock);
    upload->observer()({1, 200});
    upload->observer()({2, 200});
    list.reset();
    clock.advance(Uploads::Pace);
    upload->observer()({3, 200});
    EXPECT_EQ(upload->upload().progress.sent, 1);
}
