#include "state/Session.h"

Session::Session(std::shared_ptr<IssueService> service, Kind kind)
    : m_service(std::move(service)), m_kind(kind)
{
}

Session::~Session() = default;
