#pragma once

#include "model/ActivityPeriod.h"
#include "model/Enums.h"

#include <QString>

#include <variant>

/// Which list of issues is being looked at; also the key of the scope cache.
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

    /// The issues assigned to the signed-in user: where every session starts.
    IssueScope() = default;

    static IssueScope myIssues() { return {}; }
    /// The issues viewed lately.
    static IssueScope recent() { return IssueScope(Recent{}); }
    /// The issues that the signed-in user created.
    static IssueScope reported() { return IssueScope(Reported{}); }
    static IssueScope project(QString key, ProjectView view)
    {
        return IssueScope(InProject{std::move(key), view});
    }
    /// The recap of a period.
    static IssueScope activity(ActivityPeriod period) { return IssueScope(Activity{period}); }

    const Value &value() const { return m_value; }
    /// The project and its view, for a project scope; null otherwise.
    const InProject *asProject() const { return std::get_if<InProject>(&m_value); }
    /// The period, for an activity scope; null otherwise.
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
