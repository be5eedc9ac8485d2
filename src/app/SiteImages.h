#pragma once

#include "http/HttpSession.h"
#include "jira/JiraCredentials.h"
#include "screens/kit/images/ImageLoader.h"

#include <memory>

/// Fetches the pictures of people for an image loader, with the credentials of the site that was signed in to last for
/// pictures of that site, and without any for all others.
class SiteImages final : public ImageFetcher
{
public:
    /// Both outlive this object.
    SiteImages(ImageLoader &loader, Clock &clock);
    ~SiteImages() override;

    /// A session on a site begins.
    void showCredentials(const JiraCredentials &credentials);

    QCoro::Task<ImageAnswer> fetch(ImageRequest request) override;

private:
    ImageLoader &m_loader;
    Clock &m_clock;
    // Made when first wanted: a program without pictures has no threads for them.
    std::shared_ptr<HttpSession> m_site;
    std::shared_ptr<HttpSession> m_elsewhere;
    Identity m_identity;
};
