#include "document/document_lock.h"

#include <algorithm>

#include "base/debug_line.h"

namespace {

constexpr bigtime_t kWriterPollInterval = 1000;  // microseconds

}  // namespace

DocumentLock::DocumentLock() : frame_sem(create_sem(1, "sem")) {
    if (frame_sem < 0) kirto::DebugLine("Kirto::Kirto() - Create sem died\n");
}

DocumentLock::~DocumentLock() {
    delete_sem(frame_sem);
}

void DocumentLock::ReaderEnter() {
    if (acquire_sem(frame_sem) != B_OK) return;
    ++reader_count;
    release_sem(frame_sem);
}

void DocumentLock::ReaderExit() {
    if (acquire_sem(frame_sem) != B_OK) return;
    reader_count = std::max(reader_count - 1, 0);
    release_sem(frame_sem);
}

void DocumentLock::WriterEnter() {
    status_t status = acquire_sem(frame_sem);
    while (status == B_OK && reader_count != 0) {
        release_sem(frame_sem);
        snooze(kWriterPollInterval);
        status = acquire_sem(frame_sem);
    }
}

void DocumentLock::WriterExit() {
    release_sem(frame_sem);
}
