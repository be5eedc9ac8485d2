#include "jira/Description.h"
#include "jira/SiteAnswers.h"
#include "jira/wire/AttachmentDTO.h"
#include "jira/wire/CreatedIssueDTO.h"
#include "jira/wire/Models.h"
#include "jira/wire/PriorityDTO.h"
#include "jira/wire/SearchResponseDTO.h"
#include "jira/wire/TransitionsDTO.h"
#include "jira/wire/WireDecoding.h"
#include "richtext/CaseFile.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The current time in every case.
QDateTime now()
{
    return QDateTime(QDate(2026, 10, 29), QTime(13, 32), Qt::UTC);
}

/// The description of the record decoded from a response, or the decoding error.
template <typename DTO>
QString outcome(const QString &json, const std::function<QString(const DTO &)> &described)
{
    const auto wire = decodeWire<DTO>(json.toUtf8());
    return wire ? described(*wire) : wire.error().detail;
}

QString issues(const QString &json)
{
    return outcome<SearchResponseDTO>(
        json, [](const auto &page) { return Description::of(modelsOf(page.issues, now())); });
}

QString issue(const QString &json)
{
    return outcome<IssueDTO>(json, [](const auto &wire) {
        return Description::of(SiteAnswers::detailedIssue(wire, now()));
    });
}

QString users(const QString &json)
{
    return outcome<QList<UserDTO>>(
        json, [](const auto &wires) { return Description::of(modelsOf(wires)); });
}

QString projects(const QString &json)
{
    return outcome<ProjectSearchDTO>(
        json, [](const auto &page) { return Description::of(modelsOf(page.values)); });
}

QString comments(const QString &json)
{
    return outcome<CommentsDTO>(
        json, [](const auto &wire) { return Description::of(modelsOf(wire.comments, now())); });
}

QString transitions(const QString &json)
{
    return outcome<TransitionsDTO>(
        json, [](const auto &wire) { return Description::of(modelsOf(wire.transitions)); });
}

QString priorities(const QString &json)
{
    return outcome<PrioritySearchDTO>(
        json, [](const auto &page) { return Description::of(modelsOf(page.values)); });
}

QString statuses(const QString &json)
{
    return outcome<QList<IssueTypeStatusesDTO>>(
        json, [](const auto &types) { return Description::of(SiteAnswers::statuses(types)); });
}

QString attachments(const QString &json)
{
    return outcome<QList<AttachmentDTO>>(
        json, [](const auto &wires) { return Description::of(modelsOf(wires, now())); });
}

QString created(const QString &json)
{
    return outcome<CreatedIssueDTO>(json, [](const auto &wire) { return wire.key; });
}

/// Decodes a case. The part of the file name before the dash determines the type of the record.
QString outcomeOf(const Case &value)
{
    static const QHash<QString, QString (*)(const QString &)> readers = {
        {u"issues"_s, issues},         {u"issue"_s, issue},       {u"users"_s, users},
        {u"projects"_s, projects},     {u"comments"_s, comments}, {u"transitions"_s, transitions},
        {u"priorities"_s, priorities}, {u"statuses"_s, statuses}, {u"attachments"_s, attachments},
        {u"created"_s, created}};
    return readers[value.file.section(u'-', 0, 0)](value.input);
}

class WireCases : public testing::TestWithParam<Case>
{
};

TEST_P(WireCases, ReadAndMapped)
{
    EXPECT_EQ(outcomeOf(GetParam()).toStdString(), GetParam().expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Answers, WireCases, testing::ValuesIn(casesIn(u"wire"_s, u""_s)),
                         [](const auto &info) { return testName(info.param); });

} // namespace
