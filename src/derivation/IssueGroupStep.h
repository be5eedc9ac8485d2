#pragma once

#include "derivation/IssueGroup.h"

#include <variant>
#include <vector>

/// Where an issue stands in a list of groups.
struct IssuePlace
{
    int group = 0;
    int position = 0;

    bool operator==(const IssuePlace &) const = default;
};

/// One step from a list of groups to another one. Places are those in the groups as they stand when the step is taken;
/// that of a move's end is where the thing stands afterwards.
namespace GroupStep {

/// A group without issues comes.
struct GroupInserted
{
    int group = 0;
    IssueGroup header;
};
/// A group goes in which no issue is left.
struct GroupRemoved
{
    int group = 0;
};
struct GroupMoved
{
    int from = 0;
    int to = 0;
};
/// All of a group but its issues becomes another; those of `header` do not count.
struct GroupChanged
{
    int group = 0;
    IssueGroup header;
};
struct IssueInserted
{
    IssuePlace at;
    SharedIssue issue;
};
struct IssueRemoved
{
    IssuePlace at;
};
/// An issue changes its place, and may have become another.
struct IssueMoved
{
    IssuePlace from;
    IssuePlace to;
    SharedIssue issue;
};
struct IssueChanged
{
    IssuePlace at;
    SharedIssue issue;
};

} // namespace GroupStep

using IssueGroupStep =
    std::variant<GroupStep::GroupInserted, GroupStep::GroupRemoved, GroupStep::GroupMoved,
                 GroupStep::GroupChanged, GroupStep::IssueInserted, GroupStep::IssueRemoved,
                 GroupStep::IssueMoved, GroupStep::IssueChanged>;
using IssueGroupSteps = std::vector<IssueGroupStep>;

/// Takes the step. Costs a shift of the issues in the groups that it names, at most.
void applyStep(const IssueGroupStep &step, QList<IssueGroup> &groups);
