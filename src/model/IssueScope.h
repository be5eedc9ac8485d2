#pragma once

#include "model/ActivityPeriod.h"
#include "model/Enums.h"

#include <QString>

#include <variant>

/// Identifies a list of issues; also the key of the cache of lists.
class IssueScope
{
    Q_GADGET

public:
    struct MyIssues
    {
        bool operator==(const MyIssues &) const = default;
    };
    struct Recent
    {
        bool operator==(const Recent &) const = default;
    };
    struct Reported
    {
        bool operator==(const Reported &) const = default;
    };
    struct InProject
    {
        QString key;
        ProjectView view = ProjectView::All;

        bool operator==(const InProject &) const = default;
    };
    struct Activity
    {
        ActivityPeriod period;

        bool operator==(const Activity &) const = default;
    };
    using Value = std::variant<MyIssues, Recent, Reported, InProject, Activity>;

    /// The issues assigned to the signed-in user. This is the scope that every session starts with.
    IssueScope() = default;

    static IssueScope myIssues() { return {}; }
    /// The issues that the signed-in user viewed recently.
    static IssueScope recent() { return IssueScope(Recent{}); }
    /// The issues that the signed-in user created.
    static IssueScope reported() { return IssueScope(Reported{}); }
    static IssueScope project(QString key, ProjectView view)
    {
        return IssueScope(InProject{std::move(key), view});
    }
    /// The issues changed within a period, for the recap.
    static IssueScope activity(ActivityPeriod period) { return IssueScope(Activity{period}); }

    const Value &value() const { return m_value; }
    /// The project and its view if this is a project scope; null otherwise.
    const InProject *asProject() const { return std::get_if<InProject>(&m_value); }
    /// The period if this is an activity scope; null otherwise.
    const ActivityPeriod *asActivity() const
    {
        const auto *activity = std::get_if<Activity>(&m_value);
        return activity ? &activity->period : nullptr;
    }

    bool operator==(const IssueScope &) const = default;

private:
    explicit IssueScope(Value value) : m_value(std::move(value)) {}

    Value m_value;
};

size_t qHash(const IssueScope &scope, size_t seed = 0);
