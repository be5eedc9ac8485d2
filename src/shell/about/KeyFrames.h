#pragma once

#include <chrono>
#include <optional>

/// Finds the frame that shows the effect of a key press in one window, and how long it took. The first two functions are
/// called on the UI thread, the others on the thread that draws. While a frame begins, the UI thread waits.
class KeyFrames
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::nanoseconds;

    /// A frame that begins later than this after the key was handled shows something else: the key changed nothing. The
    /// time to handle a key does not count, however long it is.
    static constexpr std::chrono::milliseconds LongestWait{100};

    /// A key was pressed. Of several presses before a frame, the first counts.
    void pressed(Time at);
    /// The window has handled the key, and what it changed will be in the next frame.
    void handled(Time at);
    /// A frame takes over the state of the window.
    void frameBegan(Time at);
    /// This frame is on the screen. Returns the time since the key press that it shows; nothing if it shows none.
    std::optional<Duration> frameShown(Time at);

private:
    bool isForgotten(Time at) const;

    std::optional<Time> m_pressed;
    std::optional<Time> m_handled;
    std::optional<Time> m_inFrame;
};
