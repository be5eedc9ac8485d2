#pragma once

#include "model/JiraError.h"

#include <QByteArray>

#include <expected>

/// Reads the body of an answer as a wire record, or as a list of them. Strict about what it reads: a member that must
/// be there and is not, or a member of the wrong kind, fails the whole answer, and so does anything that is not JSON in
/// UTF-8. Members that no record knows are ignored at any depth. The error names the place
/// ("issues[3].fields.status.name : absent"), in at most 240 characters. Never throws.
///
/// Made for the records that answers consist of: `UserDTO`, `ProjectDTO`, `ProjectSearchDTO`, `PrioritySearchDTO`,
/// `SearchResponseDTO`, `IssueDTO`, `CommentsDTO`, `CommentDTO`, `TransitionsDTO`, `CreatedIssueDTO`, `JiraErrorDTO`,
/// and lists of `UserDTO`, `IssueTypeStatusesDTO`, `PriorityDTO` and `AttachmentDTO`.
template <typename DTO>
std::expected<DTO, JiraError::Decoding> decodeWire(const QByteArray &json);
