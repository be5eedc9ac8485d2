#include "derivation/IssueGroupStep.h"

using namespace GroupStep;

namespace {

void take(const GroupInserted &step, QList<IssueGroup> &groups)
{
    groups.insert(step.group, step.header);
}

void take(const GroupRemoved &step, QList<IssueGroup> &groups)
{
    groups.removeAt(step.group);
}

void take(const GroupMoved &step, QList<IssueGroup> &groups)
{
    groups.move(step.from, step.to);
}

void take(const GroupChanged &step, QList<IssueGroup> &groups)
{
    auto &group = groups[step.group];
    group.id = step.header.id;
    group.title = step.header.title;
    group.kind = step.header.kind;
}

void take(const IssueInserted &step, QList<IssueGroup> &groups)
{
    groups[step.at.group].issues.insert(step.at.position, step.issue);
}

void take(const IssueRemoved &step, QList<IssueGroup> &groups)
{
    groups[step.at.group].issues.removeAt(step.at.position);
}

void take(const IssueMoved &step, QList<IssueGroup> &groups)
{
    take(IssueRemoved{step.from}, groups);
    take(IssueInserted{step.to, step.issue}, groups);
}

void take(const IssueChanged &step, QList<IssueGroup> &groups)
{
    groups[step.at.group].issues[step.at.position] = step.issue;
}

} // namespace

void applyStep(const IssueGroupStep &step, QList<IssueGroup> &groups)
{
    std::visit([&groups](const auto &some) { take(some, groups); }, step);
}
