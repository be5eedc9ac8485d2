#pragma once

#include <memory>

/// Tells the newest of several overlapping operations from the earlier ones.
///
///     const Newest::Mark mark = m_reloads.begin();
///     ... wait ...
///     if (!isNewest(mark))
///         co_return;
class Newest
{
public:
    using Mark = std::weak_ptr<const int>;

    /// Makes every earlier mark old.
    Mark begin()
    {
        m_current = std::make_shared<const int>();
        return m_current;
    }
    /// Makes every mark old; so does the destruction of this object.
    void end() { m_current.reset(); }

private:
    std::shared_ptr<const int> m_current;
};

inline bool isNewest(const Newest::Mark &mark)
{
    return !mark.expired();
}
