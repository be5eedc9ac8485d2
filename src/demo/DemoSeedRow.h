#pragma once

#include <optional>
#include <string_view>

namespace DemoSeed {

/// The people of the demo, in the order of `users()`; the customer is not in that list.
enum class Person { Me, Nora, Basile, Maud, Yann, Elsa, Customer };
/// The statuses, priorities and issue types, in the order of their tables.
enum class RowStatus { Backlog, Todo, InProgress, InReview, Done, Cancelled };
enum class RowPriority { Highest, High, Medium, Low, Lowest };
enum class RowType { Epic, Story, Task, Bug, Subtask };
/// Whether an issue belongs to the running sprint.
enum class Planning { Sprint, Later };

/// The definition of one issue of the demo; its other data are derived from it.
struct Row
{
    std::u16string_view key;
    std::u16string_view title;
    RowStatus status;
    std::optional<RowPriority> priority;
    std::optional<Person> assignee;
    /// Separated by blanks; a label contains none.
    std::u16string_view labels;
    RowType type;
    Planning planning;
    /// The time between the last change of the issue and the start of the demo, in days.
    double updatedDaysAgo;
    /// The key of the parent; empty if there is none.
    std::u16string_view parent;
    /// The due date, in days after the start of the demo.
    std::optional<int> due;
};

} // namespace DemoSeed
