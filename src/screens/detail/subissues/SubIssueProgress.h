#pragma once

#include "screens/detail/subissues/SubIssue.h"

#include <QObject>

/// The progress of the sub-issues of an issue, and the width of their keys.
class SubIssueProgress : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<SubIssue> rows READ rows WRITE setRows NOTIFY rowsChanged FINAL REQUIRED)
    /// The number of sub-issues whose status is closed; those without a status are not.
    Q_PROPERTY(int done READ done NOTIFY rowsChanged FINAL)
    /// "1/3"
    Q_PROPERTY(QString title READ title NOTIFY rowsChanged FINAL)
    Q_PROPERTY(qreal share READ share NOTIFY rowsChanged FINAL)
    /// The width of the column of keys.
    Q_PROPERTY(int keyWidth READ keyWidth NOTIFY rowsChanged FINAL)

public:
    using QObject::QObject;

    const QList<SubIssue> &rows() const { return m_rows; }
    void setRows(const QList<SubIssue> &rows);
    int done() const;
    QString title() const;
    /// From 0 to 1; 0 without sub-issues.
    qreal share() const;
    int keyWidth() const;

Q_SIGNALS:
    void rowsChanged();

private:
    QList<SubIssue> m_rows;
};
