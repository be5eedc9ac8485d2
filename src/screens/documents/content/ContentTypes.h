#pragma once

#include "model/ADFNode.h"

#include <QtQml/qqml.h>

/// Registers the node of a document with QML, which passes it from one property of C++ to another and cannot look into
/// it. QML cannot declare properties of this type, because the record is not a gadget.
struct ADFNodeValue
{
    Q_GADGET
    QML_FOREIGN(ADFNode)
    QML_VALUE_TYPE(adfNode)
};
