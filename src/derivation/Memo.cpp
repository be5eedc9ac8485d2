#include "derivation/Memo.h"

Q_LOGGING_CATEGORY(computationLog, "velmora.computation", QtWarningMsg)
