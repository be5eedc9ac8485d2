#pragma once

#include <optional>

/// What a process could do, as bits of its exit code.
enum Ability {
    OpensFiles = 1,
    OpensSockets = 2,
    StartsProcesses = 4,
    SignalsOthers = 8,
    ExecutesMemory = 16,
    TakesMemory = 32,
    ReadsFolders = 64,
};

/// If the program was started with `--probe` or `--probe-confined`, tries what a confined process must not do and
/// returns the exit code. With `--die`, starts a helper, prints its number and kills itself.
std::optional<int> probeIfAsked(int argc, char **argv);
