#pragma once

#include "state/recap/ActivityBadge.h"

#include <QtQml/qqmlregistration.h>

/// The badge of a row, for QML: the latest event of an issue in a recap, or nothing.
class IssueListBadge
{
    Q_GADGET
    QML_VALUE_TYPE(issueListBadge)
    Q_PROPERTY(bool isShown READ isShown CONSTANT FINAL)
    Q_PROPERTY(QString label READ label CONSTANT FINAL)
    Q_PROPERTY(QString dateText READ dateText CONSTANT FINAL)
    Q_PROPERTY(QString tooltip READ tooltip CONSTANT FINAL)
    Q_PROPERTY(bool hasStatus READ hasStatus CONSTANT FINAL)
    Q_PROPERTY(IssueStatus statusOrEmpty READ statusOrEmpty CONSTANT FINAL)
    Q_PROPERTY(bool hasUser READ hasUser CONSTANT FINAL)
    Q_PROPERTY(JiraUser userOrEmpty READ userOrEmpty CONSTANT FINAL)
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)

public:
    IssueListBadge() = default;
    explicit IssueListBadge(std::optional<ActivityBadge> badge) : m_badge(std::move(badge)) {}

    bool isShown() const { return m_badge.has_value(); }
    /// The name of the new status; empty for other events.
    QString label() const { return m_badge ? m_badge->label : QString(); }
    QString dateText() const { return m_badge ? m_badge->dateText : QString(); }
    QString tooltip() const { return m_badge ? m_badge->tooltip : QString(); }
    /// The icon is one of these three: a status, a person, or a symbol by its name.
    bool hasStatus() const { return icon<IssueStatus>() != nullptr; }
    IssueStatus statusOrEmpty() const { return hasStatus() ? *icon<IssueStatus>() : IssueStatus(); }
    bool hasUser() const { return icon<JiraUser>() != nullptr; }
    JiraUser userOrEmpty() const { return hasUser() ? *icon<JiraUser>() : JiraUser(); }
    QString symbol() const;

    bool operator==(const IssueListBadge &) const = default;

private:
    template <typename T>
    const T *icon() const
    {
        return m_badge ? std::get_if<T>(&m_badge->icon) : nullptr;
    }

    std::optional<ActivityBadge> m_badge;
};
