#include "state/Observed.h"

#include <QMap>

#include <gtest/gtest.h>

namespace {

class Owner final : public Batched
{
public:
    void changed() { log += "n"; }

    std::string log;
    unsigned flushed = 0;
    Observed<Owner, int> number{this, &Owner::changed, 1};
    Observed<Owner, QMap<int, int>> map{this, &Owner::changed, 2};

protected:
    void flush(unsigned what) override
    {
        log += "f";
        flushed = what;
    }
};

TEST(ObservedTest, aFieldSetTwiceNotifiesOnce)
{
    Owner owner;
    EXPECT_TRUE(owner.number.set(3));
    EXPECT_FALSE(owner.number.set(3));

    EXPECT_EQ(*owner.number, 3);
    EXPECT_EQ(owner.log, "nf");
}

TEST(ObservedTest, theVersionGrowsWithEachChangeAndOnlyThen)
{
    Owner owner;
    const auto before = owner.number.version();
    owner.number.set(3);
    owner.number.set(3);
    EXPECT_EQ(owner.number.version(), before + 1);
}

TEST(ObservedTest, aWriteOutsideABatchIsFlushedAtOnceWithItsFlag)
{
    Owner owner;
    owner.map.insert(1, 2);

    EXPECT_EQ(owner.log, "nf");
    EXPECT_EQ(owner.flushed, 2U);
}

TEST(ObservedTest, aBatchFlushesOnceAtItsEndHoweverDeepItIsNested)
{
    Owner owner;
    {
        const Owner::Batch outer(owner);
        owner.number.set(1);
        {
            const Owner::Batch inner(owner);
            owner.map.insert(1, 2);
        }
        EXPECT_EQ(owner.log, "nn");
    }

    EXPECT_EQ(owner.log, "nnf");
    EXPECT_EQ(owner.flushed, 3U);
}

TEST(ObservedTest, aBatchWithoutAChangeFlushesNothing)
{
    Owner owner;
    {
        const Owner::Batch batch(owner);
        owner.number.set(0);
    }

    EXPECT_EQ(owner.log, "");
}

TEST(ObservedTest, aMapEntryThatIsThereOrAbsentAlreadyNotifiesNobody)
{
    Owner owner;
    EXPECT_TRUE(owner.map.insert(1, 2));
    EXPECT_FALSE(owner.map.insert(1, 2));
    EXPECT_FALSE(owner.map.remove(9));
    EXPECT_TRUE(owner.map.remove(1));

    EXPECT_EQ(owner.log, "nfnf");
}

} // namespace
