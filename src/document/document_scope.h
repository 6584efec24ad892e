// Scopes that hold the document's lock; the only callers of its Enter and Exit operations.
#pragma once

#include <cassert>

#include "document/document_lock.h"

namespace kirto {

// Scopes the calling thread is inside. The lock is not re-entrant, and a thread that asks for it
// twice hangs only when another thread comes between; counting makes the mistake fail every time.
inline thread_local int32 t_scopes_held = 0;

// Inside while it lives: as a reader or as the writer.
template <void (DocumentLock::*Enter)(), void (DocumentLock::*Exit)()>
class DocumentScope {
  public:
    explicit DocumentScope(DocumentLock& lock) : lock_(lock) {
        assert(t_scopes_held == 0);
        (lock_.*Enter)();
        ++t_scopes_held;
    }
    ~DocumentScope() {
        (lock_.*Exit)();
        --t_scopes_held;
    }
    DocumentScope(const DocumentScope&) = delete;
    DocumentScope& operator=(const DocumentScope&) = delete;

  private:
    DocumentLock& lock_;
};

using ReaderScope = DocumentScope<&DocumentLock::ReaderEnter, &DocumentLock::ReaderExit>;
using WriterScope = DocumentScope<&DocumentLock::WriterEnter, &DocumentLock::WriterExit>;

}  // namespace kirto
