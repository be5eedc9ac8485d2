#include "app/Interpreter.h"

#include <QtGlobal>

namespace {

constexpr auto threshold = "QV4_JIT_CALL_THRESHOLD";

} // namespace

void interpretAtFirst()
{
    if (!qEnvironmentVariableIsSet(threshold))
        qputenv(threshold, "200");
}
