#include "platform/CaptureFile.h"

#include "model/Failure.h"
#include "support/RunUntil.h"
#include "support/SmallDisk.h"
#include "support/TaskResult.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CaptureFile, OnAFullDiskIsAFailureAndLeavesNothing)
{
    const QTemporaryDir parent;
    // The first is written at once, the second when it is complete.
    for (const qsizetype bytes : {200'000, 2'000}) {
        const SmallDisk disk(1'000);
        const TaskResult stored(
            CaptureFile::store(QByteArray(bytes, 'x'), u"Capture.png"_s, parent.path()));
        ASSERT_TRUE(runUntil([&] { return stored.isDone(); }));
        EXPECT_THROW(stored.value(), Failure) << bytes;
        EXPECT_TRUE(QDir(parent.path()).isEmpty()) << bytes;
    }
}
