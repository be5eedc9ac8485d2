#include "screens/kit/KitProviders.h"

#include "screens/kit/controls/ControlInterface.h"
#include "screens/kit/images/PictureProvider.h"
#include "screens/kit/providers/IconProvider.h"
#include "screens/kit/providers/SymbolProvider.h"

#include <QQmlEngine>

using namespace Qt::StringLiterals;

void registerKitProviders(QQmlEngine &engine)
{
    ControlInterface::install();
    // The engine takes ownership of the providers.
    engine.addImageProvider(u"symbol"_s, std::make_unique<SymbolProvider>().release());
    engine.addImageProvider(u"icon"_s, std::make_unique<IconProvider>().release());
    engine.addImageProvider(u"picture"_s, std::make_unique<PictureProvider>().release());
}
