#pragma once

#include <optional>
#include <string_view>

namespace DemoSeed {

/// The people of the demo, in the order of `users()`; the customer stands outside that list.
enum class Person { Me, Nora, Basile, Maud, Yann, Elsa, Customer };
/// The statuses, priorities and issue types, in the order of their tables.
enum class RowStatus { Backlog, Todo, InProgress, InReview, Done, Cancelled };
enum class RowPriority { Highest, High, Medium, Low, Lowest };
enum class RowType { Epic, Story, Task, Bug, Subtask };
/// Whether an issue belongs to the running sprint.
enum class Planning { Sprint, Later };

/// One issue of the demo as it is written down; everything else about it is derived.
struct Row
{
    std::u16string_view key;
    std::u16string_view title;
    RowStatus status;
    std::optional<RowPriority> priority;
    std::optional<Person> assignee;
    /// Separated by blanks, which a label cannot hold.
    std::u16string_view labels;
    RowType type;
    Planning planning;
    /// How long before the demo's start the issue was last changed, in days.
    double updatedDaysAgo;
    /// The parent's key; empty for none.
    std::u16string_view parent;
    /// The due date, in days from the demo's start.
    std::optional<int> due;
};

} // namespace DemoSeed
