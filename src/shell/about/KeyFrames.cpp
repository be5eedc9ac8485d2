#include "shell/about/KeyFrames.h"

#include <utility>

void KeyFrames::pressed(Time at)
{
    if (m_pressed && !isForgotten(at))
        return;
    m_pressed = at;
    m_handled.reset();
}

void KeyFrames::handled(Time at)
{
    if (m_pressed && !m_handled)
        m_handled = at;
}

void KeyFrames::frameBegan(Time at)
{
    m_inFrame.reset();
    // A frame that is drawn while the key is being handled does not show the result.
    if (!m_handled)
        return;
    if (!isForgotten(at))
        m_inFrame = m_pressed;
    m_pressed.reset();
    m_handled.reset();
}

std::optional<KeyFrames::Duration> KeyFrames::frameShown(Time at)
{
    const auto press = std::exchange(m_inFrame, std::nullopt);
    return press ? std::optional<Duration>(at - *press) : std::nullopt;
}

bool KeyFrames::isForgotten(Time at) const
{
    return m_handled && at - *m_handled > LongestWait;
}
