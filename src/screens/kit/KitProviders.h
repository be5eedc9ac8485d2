#pragma once

class QQmlEngine;

/// Gives an engine the image providers on which the kit's components draw: symbol, icon and picture. Call it once per engine,
/// before the first file is loaded.
void registerKitProviders(QQmlEngine &engine);
