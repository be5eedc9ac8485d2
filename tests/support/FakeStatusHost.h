#pragma once

#include "platform/StatusHost.h"

/// A desktop with or without status items, as a test chooses.
class FakeStatusHost final : public StatusHost
{
public:
    bool isPresent() const override { return m_isPresent; }
    void setIsPresent(bool present)
    {
        m_isPresent = present;
        Q_EMIT isPresentChanged();
    }

private:
    bool m_isPresent = false;
};
