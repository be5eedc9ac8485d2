#pragma once

class QQmlEngine;

/// Registers the image providers that the kit's components use with an engine: symbol, icon and picture, and what screen
/// readers are told about its controls. Call it once for each engine, before the first file is loaded.
void registerKitProviders(QQmlEngine &engine);
