#include "model/ActivityPeriod.h"
#include "model/DisplayProperties.h"
#include "model/Issue.h"
#include "model/Project.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ModelProbePlugin)

using namespace Qt::StringLiterals;

namespace {

Issue sampleIssue()
{
    Issue issue;
    issue.key = u"APP-1"_s;
    issue.status = IssueStatus(u"3"_s, u"In Progress"_s, u"indeterminate"_s);
    issue.priority = IssuePriority(u"2"_s, u"High"_s);
    issue.assignee = JiraUser{u"1"_s, u"Odile Marchais"_s, {}, {}};
    issue.type = IssueType{u"1"_s, u"Bogue"_s, false, 0};
    return issue;
}

/// A QML object that reads the records through properties of their own types.
class ModelTypes : public testing::Test
{
protected:
    void SetUp() override
    {
        m_engine.addImportPath(u":/qt/qml"_s);
        QQmlComponent component(&m_engine,
                                QUrl(u"qrc:/qt/qml/Velmora/ModelProbe/IssueProbe.qml"_s));
        probe.reset(component.createWithInitialProperties({
            {u"issue"_s, QVariant::fromValue(sampleIssue())},
            {u"project"_s,
             QVariant::fromValue(Project{u"1"_s, u"APP"_s, u"Application"_s, {}, {}, false})},
            {u"period"_s, QVariant::fromValue(ActivityPeriod{ActivityRange::Month, 0, false})},
            {u"columns"_s, QVariant::fromValue(DisplayProperties{.type = true})},
        }));
        ASSERT_NE(probe, nullptr) << component.errorString().toStdString();
    }

    std::unique_ptr<QObject> probe;

private:
    QQmlEngine m_engine;
};

TEST_F(ModelTypes, RecordsAreReadableFromQml)
{
    EXPECT_EQ(probe->property("key"), u"APP-1"_s);
    EXPECT_EQ(probe->property("statusName"), u"En cours"_s);
    EXPECT_EQ(probe->property("initials"), u"OM"_s);
    EXPECT_EQ(probe->property("projectName"), u"Application"_s);
    EXPECT_EQ(probe->property("showsType"), true);
}

TEST_F(ModelTypes, EnumerationsCompareByName)
{
    EXPECT_EQ(probe->property("isHigh"), true);
    EXPECT_EQ(probe->property("isInProgress"), true);
    EXPECT_EQ(probe->property("isBug"), true);
    EXPECT_EQ(probe->property("isMonth"), true);
}

TEST_F(ModelTypes, AnotherRecordIsSeenAtOnce)
{
    Issue issue = sampleIssue();
    issue.priority = IssuePriority(u"4"_s, u"Low"_s);
    issue.assignee.reset();
    probe->setProperty("issue", QVariant::fromValue(issue));
    EXPECT_EQ(probe->property("isHigh"), false);
    EXPECT_EQ(probe->property("initials"), u"?"_s);
}

} // namespace
