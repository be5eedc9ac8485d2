#pragma once

#include "model/JiraError.h"

#include <QByteArray>

#include <expected>

/// Decodes the body of a response as a wire record or as a list of them. A missing required member, a member of the
/// wrong type, and anything that is not JSON in UTF-8 make the whole decoding fail, and so do lists with many times what
/// is requested, before they are created. Unknown members are ignored at any depth. The error names its position
/// ("issues[3].fields.status.name : absent") in at most 240 characters. Never throws.
///
/// Instantiated for the records that responses consist of: `UserDTO`, `ProjectDTO`, `ProjectSearchDTO`,
/// `PrioritySearchDTO`, `SearchResponseDTO`, `IssueDTO`, `CommentsDTO`, `CommentDTO`, `TransitionsDTO`,
/// `CreatedIssueDTO`, `JiraErrorDTO`, and lists of `UserDTO`, `IssueTypeStatusesDTO`, `PriorityDTO` and
/// `AttachmentDTO`.
template <typename DTO>
std::expected<DTO, JiraError::Decoding> decodeWire(const QByteArray &json);
