#pragma once

#include "platform/decoding/Mapping.h"
#include "platform/decoding/helper/PdfReader.h"
#include "platform/decoding/helper/PictureDecoding.h"

#include <memory>

/// Answers requests. The latest file stays open, because its other frames or pages are often asked for next.
class DecodingDesk
{
public:
    /// Answers a request. Reads from the file `input` and writes the result to `output`, which has the size that
    /// `outputBytesOf` tells. Neither is closed.
    DecodingAnswer answer(const DecodingRequest &request, int input, int output);

private:
    void open(const DecodingRequest &request, int input);
    DecodingAnswer picture(const DecodingRequest &request, char *output);
    DecodingAnswer frame(const DecodingRequest &request, char *output);
    DecodingAnswer pages(char *output);
    DecodingAnswer page(const DecodingRequest &request, char *output);
    PdfReader &pdf();

    quint64 m_source = 0;
    // The readers use the content, so they are declared after it.
    Mapping m_content;
    std::unique_ptr<FrameReader> m_frames;
    std::unique_ptr<PdfReader> m_pdf;
};
