#pragma once

#include "model/ADFNode.h"

#include <QtQml/qqml.h>

/// Registers the node of a document with QML, which passes it on and cannot look into it.
struct ADFNodeValue
{
    Q_GADGET
    QML_FOREIGN(ADFNode)
    QML_VALUE_TYPE(adfNode)
};
