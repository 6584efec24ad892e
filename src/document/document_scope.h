// Scopes that hold the document's lock; the only callers of its Enter and Exit operations.
#pragma once

#include <cassert>

#include "document/animation_document.h"

namespace kirto {

// Scopes the calling thread is inside. The lock is not re-entrant, and a thread that asks for it
// twice hangs only when another thread comes between; counting makes the mistake fail every time.
inline thread_local int32 t_scopes_held = 0;

// Inside as a reader while it lives. Leave() and Enter() step out and in again, for code that must
// let a writer through half-way.
class ReaderScope {
  public:
    explicit ReaderScope(AnimationDocument& document) : document_(document) { Enter(); }
    ~ReaderScope() { Leave(); }
    ReaderScope(const ReaderScope&) = delete;
    ReaderScope& operator=(const ReaderScope&) = delete;

    void Enter() {
        if (inside_) return;
        assert(t_scopes_held == 0);
        document_.ReaderEnter();
        ++t_scopes_held;
        inside_ = true;
    }
    void Leave() {
        if (!inside_) return;
        document_.ReaderExit();
        --t_scopes_held;
        inside_ = false;
    }

  private:
    AnimationDocument& document_;
    bool inside_ = false;
};

// Inside as a reader if no writer was when it was made; check Entered() before reading.
class TryReaderScope {
  public:
    explicit TryReaderScope(AnimationDocument& document)
        : document_(document), entered_(document.TryReaderEnter()) {
        if (entered_) ++t_scopes_held;
    }
    ~TryReaderScope() {
        if (!entered_) return;
        document_.ReaderExit();
        --t_scopes_held;
    }
    TryReaderScope(const TryReaderScope&) = delete;
    TryReaderScope& operator=(const TryReaderScope&) = delete;

    bool Entered() const { return entered_; }

  private:
    AnimationDocument& document_;
    bool entered_;
};

// Inside as the writer while it lives.
class WriterScope {
  public:
    explicit WriterScope(AnimationDocument& document) : document_(document) {
        assert(t_scopes_held == 0);
        document_.WriterEnter();
        ++t_scopes_held;
    }
    ~WriterScope() {
        document_.WriterExit();
        --t_scopes_held;
    }
    WriterScope(const WriterScope&) = delete;
    WriterScope& operator=(const WriterScope&) = delete;

  private:
    AnimationDocument& document_;
};

}  // namespace kirto
