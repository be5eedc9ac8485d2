#include "demo/DemoSources.h"

#include <QRandomGenerator>
#include <QStandardPaths>
#include <QUuid>

using namespace Qt::StringLiterals;

DemoSources DemoSources::system()
{
    return {
        [](int largest) { return QRandomGenerator::global()->bounded(largest + 1); },
        [] { return QUuid::createUuid().toString(QUuid::WithoutBraces); },
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + u"/Velmora/demo"_s,
    };
}
