#include "simulator/SiteRest.h"

#include "simulator/PlainPicture.h"
#include "simulator/SiteDataCenter.h"
#include "simulator/SiteReads.h"
#include "simulator/SiteReply.h"
#include "simulator/SiteWrites.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

bool isSignedIn(const Site &site, const RawRequest &request)
{
    const QByteArray pair = (site.email + u':' + site.token).toUtf8().toBase64();
    const QByteArray given = request.header("Authorization");
    return given == "Basic " + pair || given == "Bearer " + site.personalToken.toUtf8();
}

RawAnswer notSignedIn()
{
    const QByteArray body =
        R"({"message":"Client must be authenticated to access this resource.","status-code":401})";
    return RawAnswer::http(401, body,
                           {{"Content-Type", "application/json;charset=UTF-8"},
                            {"WWW-Authenticate", "OAuth realm=\"simulateur\""}});
}

/// What anybody gets; nothing if Jira does not document the operation as one for anybody.
std::optional<RawAnswer> answerForAnybody(const Site &site, const RawRequest &request)
{
    const auto route = routeOf(request);
    if (!route)
        return {};
    QByteArray body;
    switch (route->operation) {
    case SiteOperation::Search:
        body = R"({"issues":[],"isLast":true})";
        break;
    case SiteOperation::Projects:
        body = R"({"startAt":0,"maxResults":50,"total":0,"isLast":true,"values":[]})";
        break;
    default:
        return {};
    }
    RawAnswer::Headers headers{{"Content-Type", "application/json;charset=UTF-8"}};
    if (site.anybody == Site::Anybody::AnsweredAndNamed)
        headers.emplaceBack("X-Seraph-LoginReason", "AUTHENTICATED_FAILED");
    return RawAnswer::http(200, body, headers);
}

RawAnswer answerWithoutAccount(const Site &site, const RawRequest &request)
{
    if (site.anybody == Site::Anybody::Refused)
        return notSignedIn();
    return answerForAnybody(site, request).value_or(notSignedIn());
}

/// The pictures of projects are on the site's own origin and need its credentials, unlike those of people.
bool isProjectPicture(const RawRequest &request)
{
    return request.method == "GET" &&
           request.target.startsWith("/rest/api/3/universal_avatar/view/type/project/avatar/");
}

RawAnswer picture(const RawRequest &request)
{
    return RawAnswer::http(200, plainPicture(48, 48, qHash(request.target, 7)),
                           {{"Content-Type", "image/png"}});
}

RawAnswer routed(Site &site, const SiteRoute &route, const RawRequest &request)
{
    switch (route.operation) {
    case SiteOperation::Myself:
        return SiteReads::myself(site);
    case SiteOperation::Projects:
        return SiteReads::projects(site, route);
    case SiteOperation::Project:
        return SiteReads::project(site, route);
    case SiteOperation::ProjectStatuses:
        return SiteReads::statuses(site, route);
    case SiteOperation::PrioritySearch:
        return SiteReads::prioritySearch(site, route);
    case SiteOperation::Priorities:
        return SiteReads::priorities(site);
    case SiteOperation::AssignableUsers:
        return SiteReads::assignableUsers(site, route);
    case SiteOperation::UserSearch:
        return SiteReads::userSearch(site, route);
    case SiteOperation::Search:
        return SiteReads::search(site, request.body);
    case SiteOperation::ReadIssue:
        return SiteReads::issue(site, route);
    case SiteOperation::Comments:
        return SiteReads::comments(site, route);
    case SiteOperation::Transitions:
        return SiteReads::transitions(site, route);
    case SiteOperation::Perform:
        return SiteWrites::perform(site, route, request.body);
    case SiteOperation::Update:
        return SiteWrites::update(site, route, request.body);
    case SiteOperation::Assign:
        return SiteWrites::assign(site, route, request.body);
    case SiteOperation::AddComment:
        return SiteWrites::addComment(site, route, request.body);
    case SiteOperation::Create:
        return SiteWrites::create(site, request.body);
    case SiteOperation::Upload:
        return SiteWrites::upload(site, route, request);
    case SiteOperation::AttachmentContent:
    case SiteOperation::AttachmentThumbnail:
        return SiteReads::attachment(site, route);
    case SiteOperation::DeleteAttachment:
        return SiteWrites::deleteAttachment(site, route);
    }
    Q_UNREACHABLE();
}

bool hasJsonBody(const RawRequest &request)
{
    return request.header("Content-Type").startsWith("application/json");
}

bool wantsJsonBody(const RawRequest &request, const SiteRoute &route)
{
    return (request.method == "POST" || request.method == "PUT") &&
           route.operation != SiteOperation::Upload;
}

/// A web page of the site for browsers; tests only need it to exist.
RawAnswer page(const RawRequest &request)
{
    const QByteArray path = QByteArray(request.target).replace('<', "&lt;");
    return RawAnswer::html("<!doctype html><title>Simulateur</title><p>" + path);
}

} // namespace

RawAnswer answerOf(Site &site, const RawRequest &request)
{
    if (!request.target.startsWith("/rest/"))
        return page(request);
    if (site.requestsLeft && (*site.requestsLeft)-- <= 0)
        return SiteReply::tooManyRequests(site.retryAfter);
    if (site.edition == Site::Edition::DataCenter)
        return dataCenterAnswerOf(site, request);
    if (!isSignedIn(site, request))
        return answerWithoutAccount(site, request);
    if (isProjectPicture(request))
        return picture(request);
    const auto route = routeOf(request);
    if (!route)
        return SiteReply::refused(404, {});
    if (wantsJsonBody(request, *route) && !hasJsonBody(request))
        return SiteReply::refused(415, {});
    return routed(site, *route, request);
}

RawAnswer fileAnswerOf(const Site &site, const RawRequest &request)
{
    if (!request.header("Authorization").isNull() || !request.header("Cookie").isNull())
        return SiteReply::refused(400, {u"Credentials of another site."_s});
    const QString target = QString::fromLatin1(request.target);
    if (target.startsWith("/avatar/"_L1))
        return picture(request);
    static const QRegularExpression file(u"^/file/(\\d+)/binary\\?token=m(\\d+)$"_s);
    const auto match = file.match(target);
    const SiteAttachment *attachment = site.attachment(match.captured(1));
    if (!attachment || match.captured(1) != match.captured(2))
        return SiteReply::refused(404, {});
    return RawAnswer::http(200, attachment->content,
                           {{"Content-Type", attachment->mimeType.toLatin1()}});
}
