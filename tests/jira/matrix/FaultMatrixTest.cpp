#include "jira/JiraClient.h"
#include "jira/matrix/Fault.h"
#include "jira/matrix/Moment.h"
#include "jira/matrix/Operation.h"
#include "jira/matrix/Scratch.h"
#include "jira/matrix/Spoken.h"
#include "simulator/server/RawServer.h"
#include "simulator/server/UnknownHost.h"
#include "support/ManualCalendar.h"
#include "support/ManualClock.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <QDirIterator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString token = u"Zr7kQ2token9vXw"_s;
const QString email = u"camille@lumen.example"_s;

/// Runs one operation on a site with one fault.
class FaultMatrix : public testing::TestWithParam<std::tuple<Operation, Fault>>
{
protected:
    FaultMatrix()
    {
        if (fault().place == Fault::Place::Port)
            server.stopListening();
        server.answer(fault().answer);
    }

    static const Operation &operation() { return std::get<Operation>(GetParam()); }
    static const Fault &fault() { return std::get<Fault>(GetParam()); }

    static std::optional<Certificates::Kind> certificate()
    {
        return fault().place == Fault::Place::Certificate ? std::optional(fault().certificate)
                                                          : std::nullopt;
    }

    QUrl site() const
    {
        return fault().place == Fault::Place::Name ? unknownHostUrl() : server.url();
    }

    /// The text that the user should read; nothing if the operation should succeed.
    static std::optional<QString> expected()
    {
        const Fault::Texts &texts = fault().texts;
        if (texts.changing && operation().effect == Operation::Effect::ChangesSite)
            return *texts.changing;
        switch (operation().kind) {
        case Operation::Kind::ReadsAnswer:
            return texts.reading;
        case Operation::Kind::ReadsList:
            return texts.readingList.value_or(texts.reading);
        case Operation::Kind::IgnoresAnswer:
            return texts.ignoring.value_or(texts.reading);
        case Operation::Kind::Upload:
            return texts.upload.value_or(texts.readingList.value_or(texts.reading));
        case Operation::Kind::Download:
            return texts.download.value_or(texts.reading);
        case Operation::Kind::Local:
            return std::nullopt;
        }
        Q_UNREACHABLE();
    }

    /// Waits until the operation ends. For a fault without a response, the clock is advanced after each request that
    /// the server receives.
    bool ends(const TaskResult<void> &result)
    {
        if (fault().place != Fault::Place::Time)
            return runUntil([&] { return result.isDone(); });
        for (qsizetype asked = 0; !result.isDone(); asked = server.journal().size()) {
            if (!runUntil([&] { return result.isDone() || server.journal().size() > asked; }))
                return false;
            letPartsArrive();
            clock.advance(301s);
        }
        return true;
    }

    static QStringList filesInCache()
    {
        QStringList files;
        QDirIterator all(cacheFolder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext())
            files += all.next();
        return files;
    }

    static QString cacheFolder() { return Scratch::folder() + u"/attachments"_s; }

    static QUrl fileToUpload()
    {
        QFile file(Scratch::folder() + u"/plan.txt"_s);
        if (!file.exists() && file.open(QIODevice::WriteOnly))
            file.write("plan\n");
        return QUrl::fromLocalFile(file.fileName());
    }

    void TearDown() override { QDir(cacheFolder()).removeRecursively(); }

    const Certificates::TrustedAuthority trusted;
    ManualClock clock;
    RawServer server{certificate()};
    ManualCalendar calendar;
    JiraClient client{JiraCredentials{site(), email, token}, clock, calendar, cacheFolder()};
};

/// The text of a failed operation; nothing if it succeeded.
std::optional<QString> failureOf(const TaskResult<void> &result)
{
    try {
        result.value();
    } catch (const Failure &failure) {
        return failure.message();
    }
    return std::nullopt;
}

std::string nameOf(const testing::TestParamInfo<FaultMatrix::ParamType> &info)
{
    return std::get<Operation>(info.param).name + std::string("_") +
           std::get<Fault>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Transport, FaultMatrix,
                         testing::Combine(testing::ValuesIn(allOperations()),
                                          testing::ValuesIn(transportFaults())),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Refusals, FaultMatrix,
                         testing::Combine(testing::ValuesIn(allOperations()),
                                          testing::ValuesIn(refusals())),
                         nameOf);

TEST_P(FaultMatrix, EndsInTheRightWords)
{
    const TaskResult<void> result(operation().start(client, fileToUpload()));
    ASSERT_TRUE(ends(result)) << "the operation never ended";

    const std::optional<QString> said = failureOf(result);
    EXPECT_EQ(spoken(said, expected()), spoken(expected()));

    // Whatever the outcome is, a change must have been requested at most once.
    if (operation().effect == Operation::Effect::ChangesSite)
        EXPECT_LE(server.journal().size(), 1);
    if (operation().kind == Operation::Kind::Local)
        EXPECT_EQ(server.connections(), 0);
    // A failed download must leave no file.
    if (said)
        EXPECT_EQ(filesInCache(), QStringList());
    EXPECT_EQ(Scratch::filesWith(token.toUtf8()), QStringList());
}

/// Defined after the matrix, because parameterised suites run in the order of this file.
class SecretsAfterTheMatrix : public testing::TestWithParam<QByteArray>
{
};

INSTANTIATE_TEST_SUITE_P(Forms, SecretsAfterTheMatrix,
                         testing::Values(token.toUtf8(), token.toUtf8().toBase64(),
                                         (email + u':' + token).toUtf8().toBase64()));

TEST_P(SecretsAfterTheMatrix, AreInNoFile)
{
    EXPECT_EQ(Scratch::filesWith(GetParam()), QStringList());
}

TEST_P(SecretsAfterTheMatrix, WouldBeFoundIfTheyWere)
{
    QFile file(Scratch::folder() + u"/.hidden"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("x" + GetParam() + "x");
    file.close();
    EXPECT_EQ(Scratch::filesWith(GetParam()), QStringList{file.fileName()});
    file.remove();
}

} // namespace
