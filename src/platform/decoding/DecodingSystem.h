#pragma once

#include <QByteArray>

/// What the decoding of pictures in a process of its own needs from the operating system.
namespace DecodingSystem {

/// The path with which the running program can be started again, even if another version was installed since.
QByteArray ownProgram();
/// A new file without a name, of a fixed size and filled with zeros, that only its descriptor leads to. -1 on failure.
/// It is closed when another program is started.
int anonymousFile(qint64 bytes);
/// A pair of connected stream sockets that are closed when another program is started. Returns false on failure.
bool connectedSockets(int (&ends)[2]);
/// The flag with which sending to a process that has ended is an error instead of a signal.
int quietSendFlag();

/// Closes all descriptors from this one on.
void closeDescriptorsFrom(int first);
/// Makes the system end this process with the thread that started it.
void endWithParent();
/// Gives up every right that decoding does not need: opening files, connections, processes and threads, and more than
/// a fixed amount of memory and processor time. What is open stays open. Returns false if that is not possible.
bool confine();

} // namespace DecodingSystem
