#pragma once

#include "platform/bundles/AppBundles.h"
#include "platform/bundles/BundleCheck.h"

#include <optional>

/// The running program, and the requirement that follows from it.
struct OwnBundle
{
    /// The identifier that a program outside a bundle requires of updates.
    static constexpr auto DefaultIdentifier = "fr.orvantis.Velmora";

    RunningApp app;
    /// True if the program runs from a bundle, which is a folder whose name ends in ".app".
    bool isBundle = false;
    /// Absent if the program runs from a bundle whose manifest is missing, damaged or not signed as it says. Then no
    /// update is accepted: without the manifest, the maker is unknown.
    std::optional<BundleCheck::Requirement> requirement;

    /// Reads the bundle that contains the program with this path.
    static OwnBundle of(const QString &program);
};
