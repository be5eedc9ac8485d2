#pragma once

/// The classes of HTTP statuses that decide about a response.
namespace HttpStatus {

/// Whether another response follows this one.
constexpr bool isInterim(int status)
{
    return status < 200;
}

/// Whether the server did what was asked.
constexpr bool isSuccess(int status)
{
    return status >= 200 && status < 300;
}

} // namespace HttpStatus
