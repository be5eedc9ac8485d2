#pragma once

#include "update/ReleaseInfo.h"

#include <qqmlintegration.h>

#include <concepts>
#include <variant>

/// The cases of `UpdateState`, in a namespace so that QML can name them (`UpdateKinds.Kind.Ready`).
namespace UpdateKinds {
Q_NAMESPACE
QML_ELEMENT

/// In the order of the alternatives of `UpdateState::Value`.
enum class Kind { Idle, Checking, UpToDate, Available, Downloading, Ready, Installing, Failed };
Q_ENUM_NS(Kind)

} // namespace UpdateKinds

/// What the updater is doing, and the result of its last attempt.
class UpdateState
{
    Q_GADGET
    QML_VALUE_TYPE(updateState)
    Q_PROPERTY(UpdateKinds::Kind kind READ kind CONSTANT FINAL)
    Q_PROPERTY(ReleaseInfo releaseOrEmpty READ releaseOrEmpty CONSTANT FINAL)
    Q_PROPERTY(QString failureOrEmpty READ failureOrEmpty CONSTANT FINAL)

public:
    using Kind = UpdateKinds::Kind;

    /// There is nothing to tell.
    struct Idle
    {
        bool operator==(const Idle &) const = default;
    };
    /// The feed was requested.
    struct Checking
    {
        bool operator==(const Checking &) const = default;
    };
    /// The last check found nothing newer.
    struct UpToDate
    {
        bool operator==(const UpToDate &) const = default;
    };
    /// A newer release exists and was not downloaded.
    struct Available
    {
        ReleaseInfo release;
        bool operator==(const Available &) const = default;
    };
    /// The release is being downloaded and verified.
    struct Downloading
    {
        ReleaseInfo release;
        bool operator==(const Downloading &) const = default;
    };
    /// The release was verified and waits for a restart of the program.
    struct Ready
    {
        ReleaseInfo release;
        bool operator==(const Ready &) const = default;
    };
    /// The installation was started and the program is quitting.
    struct Installing
    {
        bool operator==(const Installing &) const = default;
    };
    /// The last attempt failed; the text is for the user.
    struct Failed
    {
        QString message;
        bool operator==(const Failed &) const = default;
    };
    using Value =
        std::variant<Idle, Checking, UpToDate, Available, Downloading, Ready, Installing, Failed>;

    /// `Idle`.
    UpdateState() = default;
    /// One of the alternatives of `Value`.
    template <typename Alternative>
        requires(!std::same_as<Alternative, UpdateState>) &&
                std::constructible_from<Value, Alternative>
    UpdateState(Alternative state) : m_value(std::move(state))
    {
    }

    const Value &value() const { return m_value; }
    Kind kind() const { return Kind(m_value.index()); }
    bool is(Kind kind) const { return kind == this->kind(); }

    /// The release of `Available`, `Downloading` or `Ready`; null in the other cases.
    const ReleaseInfo *release() const;
    /// The same for QML: a release without values in the other cases.
    ReleaseInfo releaseOrEmpty() const;
    /// The text of `Failed`; empty in the other cases.
    QString failureOrEmpty() const;

    bool operator==(const UpdateState &) const = default;

private:
    Value m_value;
};
