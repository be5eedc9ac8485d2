#pragma once

#include <QString>

#include <functional>

/// The parts of the environment that the demo uses, besides the clock.
struct DemoSources
{
    /// Returns a random integer from 0 to `largest`, both included, with equal probability.
    std::function<int(int largest)> draw;
    /// Returns an identifier that was not returned before.
    std::function<QString()> newID;
    /// The folder for the demo's files; created when it is first needed.
    QString folder;

    /// The system's random numbers and identifiers, and the folder "Velmora/demo" in the user's cache folder.
    static DemoSources system();
};
