#pragma once

#include "model/Enums.h"

#include <QString>

/// What the user reads for an appearance: "Système", "Clair", "Sombre".
QString appearanceLabel(AppearanceMode mode);
/// The name of its symbol.
QString appearanceSymbol(AppearanceMode mode);
