#include "commands/AppearanceWords.h"

using namespace Qt::StringLiterals;

QString appearanceLabel(AppearanceMode mode)
{
    switch (mode) {
    case AppearanceMode::System:
        return u"Système"_s;
    case AppearanceMode::Light:
        return u"Clair"_s;
    case AppearanceMode::Dark:
        return u"Sombre"_s;
    }
    Q_UNREACHABLE();
}

QString appearanceSymbol(AppearanceMode mode)
{
    switch (mode) {
    case AppearanceMode::System:
        return u"circle.lefthalf.filled"_s;
    case AppearanceMode::Light:
        return u"sun.max.fill"_s;
    case AppearanceMode::Dark:
        return u"moon.fill"_s;
    }
    Q_UNREACHABLE();
}
