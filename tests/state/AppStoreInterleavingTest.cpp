// Random interleavings of edits, reloads, changes of scope and sign-outs, against a service that delays, reorders, fails
// and cancels. What the rules of the store promise, and is checked after every single step:
//
// - A copy of an issue changes only by an edit, an undoing or a transition's end of that very field, or because a list or
//   a record from the service arrived in its place; then it is what arrived. No other field and no other issue changes.
// - An edit, its undoing and a transition's end reach all copies: they agree in that field afterwards, and go on agreeing
//   until the service's view arrives in some of them. (It comes to one place at a time, and may be older or newer than
//   what an edit shows; that copies then differ until the next refresh is how the store is meant to be.)
// - A failed request raises exactly one toast, a cancelled one none, lists and side requests none.
//
// When all answers are in and each list has been fetched once more, all copies agree with the service in every field.
#include "state/InterleavingRun.h"

namespace {

constexpr int FirstSeed = 1;
constexpr int Seeds = 1200;

class AppStoreInterleavingTest : public AppStoreFixture
{
};

TEST_F(AppStoreInterleavingTest, copiesAgreeAndNothingElseChangesWhateverTheOrder)
{
    InterleavingRun::Counts total;
    for (int seed = FirstSeed; seed < FirstSeed + Seeds; ++seed) {
        store.reset();
        service->cancelPending();
        service = std::make_shared<ScriptedService>();
        makeStore();
        InterleavingRun run(*store, *service, unsigned(seed));
        run.toTheEnd();
        total += run.counts();
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
    }
    // So that the run cannot pass by doing nothing.
    EXPECT_GT(total.edits, 10 * Seeds);
    EXPECT_GT(total.failures, Seeds);
    EXPECT_GT(total.cancellations, Seeds);
    EXPECT_GT(total.signOuts, Seeds / 4);
    EXPECT_GT(total.agreements, 100 * Seeds);
    std::cout << Seeds << " interleavings, " << total.steps << " steps, " << total.edits
              << " edits, " << total.failures << " failures, " << total.cancellations
              << " cancellations, " << total.signOuts << " sign-outs, " << total.agreements
              << " agreements checked\n";
}

} // namespace
