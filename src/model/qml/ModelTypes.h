#pragma once

#include "model/ActivityPeriod.h"
#include "model/DisplayProperties.h"
#include "model/Enums.h"
#include "model/Issue.h"
#include "model/IssuePriority.h"
#include "model/IssueScope.h"
#include "model/IssueStatus.h"
#include "model/IssueType.h"
#include "model/JiraUser.h"
#include "model/Project.h"

#include <QtQml/qqml.h>

/// Registers the records with QML under their names. The records themselves do not depend on QML.
namespace ModelTypes {

struct IssueValue
{
    Q_GADGET
    QML_FOREIGN(Issue)
    QML_VALUE_TYPE(issue)
};

struct IssueStatusValue
{
    Q_GADGET
    QML_FOREIGN(IssueStatus)
    QML_VALUE_TYPE(issueStatus)
};

struct IssuePriorityValue
{
    Q_GADGET
    QML_FOREIGN(IssuePriority)
    QML_VALUE_TYPE(issuePriority)
};

struct IssueTypeValue
{
    Q_GADGET
    QML_FOREIGN(IssueType)
    QML_VALUE_TYPE(issueType)
};

struct ProjectValue
{
    Q_GADGET
    QML_FOREIGN(Project)
    QML_VALUE_TYPE(project)
};

struct JiraUserValue
{
    Q_GADGET
    QML_FOREIGN(JiraUser)
    QML_VALUE_TYPE(jiraUser)
};

struct IssueScopeValue
{
    Q_GADGET
    QML_FOREIGN(IssueScope)
    QML_VALUE_TYPE(issueScope)
};

struct ActivityPeriodValue
{
    Q_GADGET
    QML_FOREIGN(ActivityPeriod)
    QML_VALUE_TYPE(activityPeriod)
};

struct DisplayPropertiesValue
{
    Q_GADGET
    QML_FOREIGN(DisplayProperties)
    QML_VALUE_TYPE(displayProperties)
};

} // namespace ModelTypes

namespace ModelEnums {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(Model)
QML_NAMED_ELEMENT(Model)
} // namespace ModelEnums
