#pragma once

#include "model/Issue.h"

#include <QtQml/qqmlregistration.h>

/// A row of the list of sub-issues.
class SubIssue
{
    Q_GADGET
    QML_VALUE_TYPE(subIssue)
    Q_PROPERTY(QString key MEMBER key CONSTANT FINAL)
    /// On one line.
    Q_PROPERTY(QString summary MEMBER summary CONSTANT FINAL)
    Q_PROPERTY(bool hasStatus MEMBER hasStatus CONSTANT FINAL)
    Q_PROPERTY(IssueStatus status MEMBER status CONSTANT FINAL)

public:
    QString key;
    QString summary;
    bool hasStatus = false;
    IssueStatus status;

    bool operator==(const SubIssue &) const = default;
};

QList<SubIssue> subIssues(const QList<IssueRef> &issues);
