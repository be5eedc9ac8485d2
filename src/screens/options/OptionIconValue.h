#pragma once

#include "commands/OptionIcon.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The icon of an option, for QML. `kind` tells which of the values is valid. The others are empty.
class OptionIconValue
{
    Q_GADGET
    QML_VALUE_TYPE(optionIcon)
    Q_PROPERTY(int kind READ kind CONSTANT FINAL)
    Q_PROPERTY(IssueStatus status READ status CONSTANT FINAL)
    Q_PROPERTY(int level READ level CONSTANT FINAL)
    Q_PROPERTY(bool hasUser READ hasUser CONSTANT FINAL)
    Q_PROPERTY(JiraUser user READ user CONSTANT FINAL)
    Q_PROPERTY(QString label READ label CONSTANT FINAL)
    Q_PROPERTY(IssueType type READ type CONSTANT FINAL)
    Q_PROPERTY(Project project READ project CONSTANT FINAL)
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)

public:
    OptionIconValue() = default;
    explicit OptionIconValue(OptionIcon icon) : m_icon(std::move(icon)) {}

    /// An `OptionIcons.Kind`.
    int kind() const { return int(m_icon.value.index()); }
    IssueStatus status() const { return valueOr(IssueStatus()); }
    int level() const { return int(valueOr(PriorityLevel::None)); }
    bool hasUser() const { return valueOr(OptionIcon::User()).user.has_value(); }
    JiraUser user() const { return valueOr(OptionIcon::User()).user.value_or(JiraUser()); }
    QString label() const { return valueOr(OptionIcon::Label()).name; }
    IssueType type() const { return valueOr(IssueType()); }
    Project project() const { return valueOr(Project()); }
    QString symbol() const { return valueOr(OptionIcon::Symbol()).name; }

    bool operator==(const OptionIconValue &) const = default;

private:
    template <typename T>
    T valueOr(T other) const
    {
        const auto *value = std::get_if<T>(&m_icon.value);
        return value ? *value : other;
    }

    OptionIcon m_icon;
};

/// The kinds of icons, for QML.
namespace OptionIcons {
Q_NAMESPACE
QML_ELEMENT

enum class Kind { None, Status, Priority, User, Label, Type, Project, Symbol };
Q_ENUM_NS(Kind)

} // namespace OptionIcons
