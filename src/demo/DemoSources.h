#pragma once

#include <QString>

#include <functional>

/// What the demo takes from the machine, besides the time.
struct DemoSources
{
    /// Draws an integer from 0 to `largest`, both included, each equally likely.
    std::function<int(int largest)> draw;
    /// Gives an identifier unlike any before.
    std::function<QString()> newID;
    /// Where the demo keeps its files; made when it is needed.
    QString folder;

    /// The machine's own, with the folder "Velmora/demo" of the user's caches.
    static DemoSources system();
};
