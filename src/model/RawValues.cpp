#include "model/RawValues.h"

using namespace Qt::StringLiterals;

template <>
std::span<const RawValue<ProjectView>> rawValues()
{
    static constexpr RawValue<ProjectView> table[] = {
        {ProjectView::All, "all"_L1},
        {ProjectView::Active, "active"_L1},
        {ProjectView::Backlog, "backlog"_L1},
    };
    return table;
}

template <>
std::span<const RawValue<ActivityRange>> rawValues()
{
    static constexpr RawValue<ActivityRange> table[] = {
        {ActivityRange::Week, "week"_L1},
        {ActivityRange::Month, "month"_L1},
    };
    return table;
}

template <>
std::span<const RawValue<Ordering>> rawValues()
{
    static constexpr RawValue<Ordering> table[] = {
        {Ordering::Priority, "priority"_L1}, {Ordering::Updated, "updated"_L1},
        {Ordering::Created, "created"_L1},   {Ordering::Key, "key"_L1},
        {Ordering::Manual, "manual"_L1},
    };
    return table;
}

template <>
std::span<const RawValue<Grouping>> rawValues()
{
    static constexpr RawValue<Grouping> table[] = {
        {Grouping::Status, "status"_L1},     {Grouping::Assignee, "assignee"_L1},
        {Grouping::Priority, "priority"_L1}, {Grouping::Project, "project"_L1},
        {Grouping::None, "none"_L1},
    };
    return table;
}

template <>
std::span<const RawValue<LayoutMode>> rawValues()
{
    static constexpr RawValue<LayoutMode> table[] = {
        {LayoutMode::List, "list"_L1},
        {LayoutMode::Board, "board"_L1},
    };
    return table;
}

template <>
std::span<const RawValue<AppearanceMode>> rawValues()
{
    static constexpr RawValue<AppearanceMode> table[] = {
        {AppearanceMode::System, "system"_L1},
        {AppearanceMode::Light, "light"_L1},
        {AppearanceMode::Dark, "dark"_L1},
    };
    return table;
}

template <>
std::span<const RawValue<RowDensity>> rawValues()
{
    static constexpr RawValue<RowDensity> table[] = {
        {RowDensity::Comfortable, "comfortable"_L1},
        {RowDensity::Compact, "compact"_L1},
    };
    return table;
}

template <>
std::span<const RawValue<AccentChoice>> rawValues()
{
    static constexpr RawValue<AccentChoice> table[] = {
        {AccentChoice::Indigo, "indigo"_L1},     {AccentChoice::Blue, "blue"_L1},
        {AccentChoice::Purple, "purple"_L1},     {AccentChoice::Pink, "pink"_L1},
        {AccentChoice::Orange, "orange"_L1},     {AccentChoice::Green, "green"_L1},
        {AccentChoice::Graphite, "graphite"_L1},
    };
    return table;
}
