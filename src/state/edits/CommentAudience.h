#pragma once

/// Who can read a comment: all who see the issue, or only the agents of a service project.
enum class CommentAudience { Everyone, Agents };
