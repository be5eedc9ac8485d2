#pragma once

class QThreadPool;

/// The threads of long work: as many as there are processors. Not the global pool of Qt, because Qt draws with that: the
/// UI thread hands it parts of large shapes and pictures, and would wait there until a long task has ended. May be
/// called on any thread. The end of the program waits for the tasks.
QThreadPool &workThreads();
