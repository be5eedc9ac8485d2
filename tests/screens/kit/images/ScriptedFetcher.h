#pragma once

#include "screens/kit/images/ImageFetcher.h"
#include "support/ScriptedCall.h"

/// An image fetcher whose responses the test provides.
class ScriptedFetcher final : public ImageFetcher
{
public:
    ~ScriptedFetcher() override { calls.cancelPending(); }
    QCoro::Task<ImageAnswer> fetch(ImageRequest request) override
    {
        return calls.call({}, std::move(request));
    }

    ScriptedCalls<ImageAnswer, ImageRequest> calls;
};
