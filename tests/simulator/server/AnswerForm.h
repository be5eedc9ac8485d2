#pragma once

#include "simulator/server/RawAnswer.h"
#include "simulator/server/RawRequest.h"

/// How a server transfers the bodies of its responses.
enum class AnswerForm { Plain, Packed, InChunks, PackedInChunks };

/// A well-formed response in another form. It is packed with gzip only if the request accepts that; a response without a
/// body stays as it is.
RawAnswer inForm(const RawAnswer &answer, AnswerForm form, const RawRequest &request);
