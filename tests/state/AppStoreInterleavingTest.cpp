// Random interleavings of edits, reloads, changes of scope, sign-ins and sign-outs, with sites that delay, reorder,
// refuse and cancel responses, and whose search index is updated late. The following is checked after every step:
//
// - A field without an open edit has the site's value in every copy of the issue. No late, early or outdated response
//   reverts a confirmed edit, and a refused edit is reverted to the site's value.
// - A field with open edits has the same value in every copy.
// - Sessions are independent: every copy comes from the site of the current session, and responses to an ended session
//   change nothing and show no toast.
// - A refused write shows exactly one toast, and a response that is not a refusal shows none.
//
// One issue is also changed by other users. Its copies may differ until the responses with the change have arrived. At
// the end, after all responses and another fetch of each list, every copy of every issue equals the site's issue.
#include "state/AppStoreFixture.h"
#include "state/RandomSite.h"

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr unsigned FirstSeed = 1;
// The sanitizers make each step several times slower.
constexpr unsigned Seeds = __has_feature(address_sanitizer) ? 250 : 1000;
constexpr int Steps = 60;
const QList<IssueScope> Scopes{IssueScope::myIssues(), IssueScope::recent(),
                               IssueScope::project(u"WEB"_s, ProjectView::All)};

struct Counts
{
    int edits = 0;
    int refusals = 0;
    int cancellations = 0;
    int sessions = 0;
    int lateAnswers = 0;
    qint64 comparisons = 0;
};

class AppStoreInterleavingTest : public AppStoreFixture
{
protected:
    using Field = RandomSite::Field;

    void TearDown() override { forget(); }

    void begin(unsigned seed)
    {
        forget();
        m_random.seed(seed);
        makeStore();
        openSession();
    }
    void act();
    void settle();
    void checkAgainstSite();
    Counts counts;

private:
    int random(int count) { return int(m_random() % unsigned(count)); }
    template <typename T>
    const T &oneOf(const QList<T> &values)
    {
        return values[random(int(values.size()))];
    }
    RandomSite &site() { return *m_sites.back(); }
    void forget();
    void openSession();
    void answer(RandomSite &answering);
    void edit();
    void load();
    void settleAll();
    void noteRequests();
    QStringList someKeys();
    /// Every copy of every issue in the store.
    QList<SharedIssue> copies() const;
    void checkCopies();
    bool isOpen(const QString &key, Field field) const;

    std::mt19937 m_random;
    std::vector<std::unique_ptr<RandomSite>> m_sites;
};

void AppStoreInterleavingTest::forget()
{
    store.reset();
    for (const auto &one : m_sites)
        one->service()->cancelPending();
    m_sites.clear();
}

void AppStoreInterleavingTest::openSession()
{
    ++counts.sessions;
    m_sites.push_back(
        std::make_unique<RandomSite>(u"site%1-"_s.arg(m_sites.size()), clock, m_random));
    service = site().service();
    store->openDemo();
    noteRequests();
}

void AppStoreInterleavingTest::noteRequests()
{
    for (const auto &one : m_sites)
        one->noteRequests();
}

QStringList AppStoreInterleavingTest::someKeys()
{
    QStringList keys;
    for (int i = random(3); i >= 0; --i)
        keys += oneOf(site().keys());
    keys.removeDuplicates();
    return keys;
}

void AppStoreInterleavingTest::act()
{
    const int dice = random(100);
    const bool isSignedIn = store->phase() == AppStore::Phase::Ready;
    if (dice < 45) {
        RandomSite &answering = *m_sites[std::size_t(random(int(m_sites.size())))];
        if (answering.waiting() > 0)
            answer(answering);
    } else if (dice < 75) {
        edit();
    } else if (dice < 90) {
        load();
    } else if (dice < 94) {
        clock.advance(std::chrono::seconds(random(200)));
    } else if (dice < 97) {
        site().changeByOthers();
    } else if (isSignedIn && random(2)) {
        store->signOut();
    } else {
        openSession();
    }
    noteRequests();
    checkCopies();
}

void AppStoreInterleavingTest::answer(RandomSite &answering)
{
    const bool isLate = &answering != &site() || store->phase() != AppStore::Phase::Ready;
    const auto toasts = store->toasts();
    const auto copiesBefore = isLate ? copies() : QList<SharedIssue>();
    const auto said = answering.answerAny();
    if (isLate) {
        ++counts.lateAnswers;
        EXPECT_EQ(store->toasts(), toasts);
        EXPECT_EQ(copies(), copiesBefore);
        return;
    }
    counts.refusals += said.isRefused;
    counts.cancellations += said.isCancelled;
    const auto raised = store->toasts().size() - toasts.size();
    // A refused list is reported only to its caller, and refused transitions only if they were requested for an edit.
    EXPECT_LE(raised, said.isRefused ? 1 : 0);
    if (said.written && *said.written != Field::Status)
        EXPECT_EQ(raised, said.isRefused ? 1 : 0);
}

void AppStoreInterleavingTest::edit()
{
    ++counts.edits;
    const QStringList keys = someKeys();
    const QString &key = keys.front();
    const QString word = QString::number(random(1000));
    JiraUser person;
    person.id = word;
    person.name = u"Personne "_s + word;
    switch (random(7)) {
    case 0:
        store->setPriority(IssuePriority(word, u"High"_s), keys);
        break;
    case 1:
        store->assign(keys, random(3) ? std::optional(person) : std::nullopt);
        break;
    case 2:
        store->toggleLabel(u"l%1"_s.arg(random(2)), keys);
        break;
    case 3:
        store->rename(key, u"Titre "_s + word);
        break;
    case 4:
        store->setDescription(random(4) ? u"Texte "_s + word : u" "_s, key);
        break;
    case 5:
        store->setDueDate(QDate(2026, 11, 1 + random(28)), key);
        break;
    default:
        store->setStatus(oneOf(site().statuses()), keys);
    }
}

void AppStoreInterleavingTest::load()
{
    switch (random(4)) {
    case 0:
        store->select(oneOf(Scopes));
        break;
    case 1:
        store->refresh();
        break;
    case 2:
        spawn(store->refreshMyIssues());
        break;
    default:
        spawn(store->loadDetails(oneOf(site().keys())));
    }
}

QList<SharedIssue> AppStoreInterleavingTest::copies() const
{
    QList<SharedIssue> result = store->issues();
    result += store->myOpenIssues();
    result += store->details().values();
    const auto cached = store->scopeCache();
    for (const IndexedIssues &remembered : cached)
        result += remembered.list();
    return result;
}

/// The edit of a field is open while the site has not responded to a request for it.
bool AppStoreInterleavingTest::isOpen(const QString &key, Field field) const
{
    const RandomSite &present = *m_sites.back();
    return present.hasOpenWrite(key, field);
}

void AppStoreInterleavingTest::checkCopies()
{
    if (store->phase() != AppStore::Phase::Ready)
        return;
    QHash<QString, SharedIssue> first;
    const auto details = store->details();
    for (const SharedIssue &copy : copies()) {
        EXPECT_TRUE(copy->id.startsWith(site().name())) << "a copy of another site's issue";
        if (copy->key == site().keyOfOthers())
            continue;
        const auto known = first.constFind(copy->key);
        if (known == first.cend())
            first.insert(copy->key, copy);
        for (int number = 0; number < Field::FieldCount; ++number) {
            const auto field = Field(number);
            // Lists contain no descriptions.
            const auto opened = details.constFind(copy->key);
            const bool isOpened = opened != details.cend() && opened->isSameObject(copy);
            if (field == Field::Description && !isOpened)
                continue;
            ++counts.comparisons;
            if (isOpen(copy->key, field)) {
                EXPECT_TRUE(field == Field::Description ||
                            RandomSite::areEqual(*copy, *first.value(copy->key), field))
                    << "copies of " << copy->key.toStdString() << " differ in field " << number;
            } else {
                EXPECT_TRUE(RandomSite::areEqual(*copy, site().issue(copy->key), field))
                    << copy->key.toStdString() << " is not what the site holds in field " << number;
            }
        }
    }
}

void AppStoreInterleavingTest::settleAll()
{
    for (const auto &one : m_sites) {
        while (one->waiting() > 0)
            one->answerAny();
    }
}

/// Answers all requests, then fetches each list and each opened issue once more.
void AppStoreInterleavingTest::settle()
{
    settleAll();
    if (store->phase() != AppStore::Phase::Ready)
        openSession();
    site().becomeReliable();
    settleAll();
    clock.advance(OpenEdits::SearchLag);
    settleAll();
    for (const IssueScope &scope : Scopes) {
        store->select(scope);
        settleAll();
        store->refresh();
        settleAll();
    }
    spawn(store->refreshMyIssues());
    settleAll();
    for (const QString &key : site().keys()) {
        spawn(store->loadDetails(key));
        settleAll();
    }
    store->select(Scopes[0]);
    settleAll();
    store->refresh();
    settleAll();
}

void AppStoreInterleavingTest::checkAgainstSite()
{
    checkCopies();
    int checked = 0;
    for (const SharedIssue &copy : copies()) {
        for (int number = 0; number < Field::FieldCount; ++number) {
            if (number != Field::Description)
                EXPECT_TRUE(RandomSite::areEqual(*copy, site().issue(copy->key), Field(number)))
                    << copy->key.toStdString() << " field " << number;
        }
        ++checked;
    }
    EXPECT_GE(checked, 18);
}

TEST_F(AppStoreInterleavingTest, everyCopyIsTrueWhateverTheOrder)
{
    for (unsigned seed = FirstSeed; seed < FirstSeed + Seeds; ++seed) {
        begin(seed);
        for (int step = 0; step < Steps && !HasFailure(); ++step)
            act();
        if (!HasFailure()) {
            settle();
            checkAgainstSite();
        }
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
    }
    // Ensures that the run has exercised every case often enough.
    EXPECT_GT(counts.edits, 10 * int(Seeds));
    EXPECT_GT(counts.refusals, int(Seeds));
    EXPECT_GT(counts.cancellations, int(Seeds) / 2);
    EXPECT_GT(counts.sessions, int(Seeds) * 3 / 2);
    EXPECT_GT(counts.lateAnswers, int(Seeds));
    EXPECT_GT(counts.comparisons, 1000 * qint64(Seeds));
    std::cout << Seeds << " interleavings, " << counts.edits << " edits, " << counts.refusals
              << " refusals, " << counts.cancellations << " cancellations, " << counts.sessions
              << " sessions, " << counts.lateAnswers << " late answers, " << counts.comparisons
              << " comparisons\n";
}

} // namespace
