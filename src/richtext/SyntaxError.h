#pragma once

#include "richtext/DecodingError.h"

#include <simdjson.h>

/// Says for the user why a text could not be parsed as JSON; the parser's own words are English.
DecodingError syntaxError(simdjson::error_code error);
