#pragma once

/// Refuses from now on every system call of all threads of this process that decoding does not need; they fail with
/// EPERM. Returns false if the kernel has no such filters.
bool filterCalls();
