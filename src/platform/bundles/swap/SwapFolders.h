#pragma once

/// Exchanges two folders of one file system.
namespace SwapFolders {

/// Exchanges two paths at once; returns 0 or the error number.
using Exchange = int (*)(const char *a, const char *b);

/// Uses the system call that exchanges two paths, so that both exist at every moment.
int atOnce(const char *a, const char *b);

/// Exchanges the folders at `a` and `b` by `exchange`. Where the file system cannot do that, it renames them one after
/// the other: for a moment nothing is at `b`, and its folder has the name of `a` with ".old" added. Returns 0 or the
/// error number; after an error both folders are where they were.
int exchanged(const char *a, const char *b, Exchange exchange);

} // namespace SwapFolders
