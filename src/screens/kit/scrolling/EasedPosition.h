#pragma once

/// The scroll positions that a view can take, in logical pixels. `last` is at least `first`.
struct ScrollBounds
{
    double first = 0;
    double last = 0;

    double bounded(double position) const;
};

/// A scroll position that approaches a target. Distances are added up, and a distance in the other direction drops what
/// is left of the previous ones. The target never leaves the bounds, so that the rest is dropped there.
class EasedPosition
{
public:
    bool isAtRest() const { return !m_isMoving; }
    /// The current position; meaningful while it moves.
    double position() const { return m_position; }
    double target() const { return m_target; }

    /// Moves the target by a distance. `position` is the view's current position, from which a movement starts.
    void push(double distance, double position, ScrollBounds bounds);
    /// Approaches a target instead of the present one.
    void aim(double target, double position, ScrollBounds bounds);
    /// Lets time pass. The position approaches the target exponentially, and reaches it once it is within half a pixel.
    void advance(int milliseconds, ScrollBounds bounds);
    void stop() { m_isMoving = false; }

private:
    double m_position = 0;
    double m_target = 0;
    bool m_isMoving = false;
};
