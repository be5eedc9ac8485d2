#pragma once

#include <optional>

/// What `main` calls before anything else. If the program was started to decode, answers requests and returns the exit
/// code for the process. Otherwise returns nothing, and `Decoders::shared` uses this program as its helper.
std::optional<int> decodeIfAsked(int argc, char **argv);
