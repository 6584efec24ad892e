#pragma once

#include "base/types.h"
#include "kit/semaphore.h"

// The reader/writer lock of the document, made of one semaphore and a count. Readers never exclude
// each other and are excluded by a writer; a writer waits until no reader is inside, looking every
// millisecond, with no priority. Not re-entrant. The document enters as the writer for each change
// that it publishes. Nothing in the program has to enter as a reader: what it reads is constant.
class DocumentLock {
  public:
    DocumentLock();
    ~DocumentLock();
    DocumentLock(const DocumentLock&) = delete;
    DocumentLock& operator=(const DocumentLock&) = delete;

    sem_id frame_sem = -1;
    int32 reader_count = 0;

    void ReaderEnter();
    void ReaderExit();
    void WriterEnter();
    void WriterExit();
};
