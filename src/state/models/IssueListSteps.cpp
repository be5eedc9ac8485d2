#include "state/models/IssueListSteps.h"

#include <algorithm>

using namespace GroupStep;

void IssueListModel::Steps::operator()(const GroupInserted &step)
{
    auto &headers = m_model.m_headerRows;
    const int row = step.group == std::ssize(headers) ? m_model.rowCount() : headers[step.group];
    headers.insert(headers.begin() + step.group, row);
    shiftHeaders(step.group, 1);
    m_model.insertAt(row, headerRow(step.header, m_collapsed.contains(step.header.id)));
}

void IssueListModel::Steps::operator()(const GroupRemoved &step)
{
    auto &headers = m_model.m_headerRows;
    const int row = headers[step.group];
    shiftHeaders(step.group, -1);
    headers.erase(headers.begin() + step.group);
    m_model.removeAt(row);
}

void IssueListModel::Steps::operator()(const GroupMoved &step)
{
    auto &headers = m_model.m_headerRows;
    const int rows = rowsOf(step.from);
    const int first = headers[step.from];
    shiftHeaders(step.from, -rows);
    headers.erase(headers.begin() + step.from);
    const int rest = m_model.rowCount() - rows;
    const int to = step.to == std::ssize(headers) ? rest : headers[step.to];
    headers.insert(headers.begin() + step.to, to);
    shiftHeaders(step.to, rows);
    m_model.shift({first, rows, to});
}

void IssueListModel::Steps::operator()(const GroupChanged &step)
{
    const auto &before = header(step.group);
    auto row = headerRow(step.header, before.isCollapsed);
    IssueListHeader changed = *row.header();
    changed.count = before.count;
    row.content = Shared(std::move(changed));
    m_model.replaceAt(m_model.m_headerRows[step.group], std::move(row));
}

void IssueListModel::Steps::operator()(const IssueInserted &step)
{
    insertRow(step.at, step.issue);
    count(step.at.group, 1);
}

void IssueListModel::Steps::operator()(const IssueRemoved &step)
{
    removeRow(step.at);
    count(step.at.group, -1);
}

void IssueListModel::Steps::operator()(const IssueMoved &step)
{
    if (!isCollapsed(step.from.group) && !isCollapsed(step.to.group)) {
        moveRow(step);
    } else {
        removeRow(step.from);
        insertRow(step.to, step.issue);
    }
    if (step.from.group == step.to.group)
        return;
    count(step.from.group, -1);
    count(step.to.group, 1);
}

void IssueListModel::Steps::operator()(const IssueChanged &step)
{
    if (!isCollapsed(step.at.group))
        m_model.replaceAt(rowOf(step.at), issueRow(step.issue));
}

const IssueListHeader &IssueListModel::Steps::header(int group) const
{
    return *m_model.rows()[m_model.m_headerRows[group]].header();
}

int IssueListModel::Steps::rowsOf(int group) const
{
    return isCollapsed(group) ? 1 : header(group).count + 1;
}

int IssueListModel::Steps::rowOf(const IssuePlace &place) const
{
    return m_model.m_headerRows[place.group] + 1 + place.position;
}

void IssueListModel::Steps::insertRow(const IssuePlace &place, const SharedIssue &issue)
{
    if (isCollapsed(place.group))
        return;
    shiftHeaders(place.group, 1);
    m_model.insertAt(rowOf(place), issueRow(issue));
}

void IssueListModel::Steps::removeRow(const IssuePlace &place)
{
    if (isCollapsed(place.group))
        return;
    shiftHeaders(place.group, -1);
    m_model.removeAt(rowOf(place));
}

void IssueListModel::Steps::moveRow(const IssueMoved &step)
{
    const int from = rowOf(step.from);
    shiftHeaders(step.from.group, -1);
    shiftHeaders(step.to.group, 1);
    const int to = rowOf(step.to);
    m_model.shift({from, 1, to});
    m_model.replaceAt(to, issueRow(step.issue));
}

void IssueListModel::Steps::shiftHeaders(int group, int rows)
{
    auto &headers = m_model.m_headerRows;
    std::for_each(headers.begin() + group + 1, headers.end(), [rows](int &row) { row += rows; });
}

void IssueListModel::Steps::count(int group, int change)
{
    const int row = m_model.m_headerRows[group];
    IssueListHeader changed = header(group);
    changed.count += change;
    m_model.replaceAt(row, {m_model.rows()[row].key, Shared(std::move(changed))});
}
