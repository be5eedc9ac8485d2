#pragma once

#include "state/models/IssueListModel.h"

/// Takes the steps of groups in a list model, whose rows are the groups' headers and, below each, its issues unless it
/// is collapsed.
class IssueListModel::Steps
{
public:
    Steps(IssueListModel &model, const QSet<QString> &collapsed)
        : m_model(model), m_collapsed(collapsed)
    {
    }

    void operator()(const GroupStep::GroupInserted &step);
    void operator()(const GroupStep::GroupRemoved &step);
    void operator()(const GroupStep::GroupMoved &step);
    void operator()(const GroupStep::GroupChanged &step);
    void operator()(const GroupStep::IssueInserted &step);
    void operator()(const GroupStep::IssueRemoved &step);
    void operator()(const GroupStep::IssueMoved &step);
    void operator()(const GroupStep::IssueChanged &step);

private:
    const IssueListHeader &header(int group) const;
    bool isCollapsed(int group) const { return header(group).isCollapsed; }
    /// How many rows the group has, its header among them.
    int rowsOf(int group) const;
    /// The row of an issue, whether or not it is shown.
    int rowOf(const IssuePlace &place) const;
    void insertRow(const IssuePlace &place, const SharedIssue &issue);
    void removeRow(const IssuePlace &place);
    void moveRow(const GroupStep::IssueMoved &step);
    /// The headers behind the group come to stand so much lower.
    void shiftHeaders(int group, int rows);
    void count(int group, int change);

    IssueListModel &m_model;
    const QSet<QString> &m_collapsed;
};
