#include "update/UpdateState.h"

const ReleaseInfo *UpdateState::release() const
{
    return std::visit(
        [](const auto &state) -> const ReleaseInfo * {
            if constexpr (requires { state.release; })
                return &state.release;
            else
                return nullptr;
        },
        m_value);
}

ReleaseInfo UpdateState::releaseOrEmpty() const
{
    const ReleaseInfo *found = release();
    return found ? *found : ReleaseInfo();
}

QString UpdateState::failureOrEmpty() const
{
    const auto *failed = std::get_if<Failed>(&m_value);
    return failed ? failed->message : QString();
}
