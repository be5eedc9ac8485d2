#pragma once

#include "http/HttpSession.h"
#include "jira/JiraCredentials.h"
#include "screens/kit/images/ImageLoader.h"

#include <memory>

/// Fetches pictures for an image loader. Uses the credentials of the latest session for pictures of its site, and no
/// credentials for all other addresses. Local files are read, because the attachments of the demo are such files.
class SiteImageFetcher final : public ImageFetcher
{
public:
    /// Both arguments must outlive this object.
    SiteImageFetcher(ImageLoader &loader, Clock &clock);
    ~SiteImageFetcher() override;

    /// Sets the credentials of the session that has just begun.
    void showCredentials(const JiraCredentials &credentials);

    QCoro::Task<ImageAnswer> fetch(ImageRequest request) override;

private:
    ImageLoader &m_loader;
    Clock &m_clock;
    // Created when first needed, so that a program without pictures has no threads for them.
    std::shared_ptr<HttpSession> m_site;
    std::shared_ptr<HttpSession> m_elsewhere;
    Identity m_identity;
};
