#pragma once

#include "screens/detail/subissues/SubIssue.h"

#include <QObject>

/// The progress of the sub-issues of an issue, and the width of their keys.
class SubIssueProgress : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<SubIssue> rows READ rows WRITE setRows NOTIFY rowsChanged FINAL REQUIRED)
    /// The number of sub-issues whose status is closed, and of all: "1/3". Those without a status are not closed.
    Q_PROPERTY(QString title READ title NOTIFY rowsChanged FINAL)
    /// The same for screen readers.
    Q_PROPERTY(QString spokenTitle READ spokenTitle NOTIFY rowsChanged FINAL)
    Q_PROPERTY(qreal share READ share NOTIFY rowsChanged FINAL)
    /// The width of the column of keys.
    Q_PROPERTY(int keyWidth READ keyWidth NOTIFY rowsChanged FINAL)

public:
    using QObject::QObject;

    const QList<SubIssue> &rows() const { return m_rows; }
    void setRows(const QList<SubIssue> &rows);
    QString title() const;
    QString spokenTitle() const;
    /// From 0 to 1; 0 without sub-issues.
    qreal share() const;
    int keyWidth() const;

Q_SIGNALS:
    void rowsChanged();

private:
    int done() const;

    QList<SubIssue> m_rows;
};
