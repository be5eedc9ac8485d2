#pragma once

#include "model/Enums.h"

#include <QString>

/// The name of an appearance in the user interface: "Système", "Clair", "Sombre".
QString appearanceLabel(AppearanceMode mode);
/// The name of the appearance's symbol.
QString appearanceSymbol(AppearanceMode mode);
