#pragma once

/// Whether there is a screen to make an issue on. Until there is, nothing offers to: asking for it would only take the
/// keyboard away.
constexpr bool hasCreateScreen = false;
