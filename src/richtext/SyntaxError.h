#pragma once

#include "richtext/DecodingError.h"

#include <simdjson.h>

/// The French description of a syntax error in JSON; the parser's own descriptions are in English.
DecodingError syntaxError(simdjson::error_code error);
