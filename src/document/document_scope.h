// Scopes that hold the document's lock; the only callers of its Enter and Exit operations.
#pragma once

#include "document/animation_document.h"

namespace kirto {

// Inside as a reader while it lives. Leave() and Enter() step out and in again, for code that must
// let a writer through half-way.
class ReaderScope {
  public:
    explicit ReaderScope(AnimationDocument& document) : document_(document) { Enter(); }
    ~ReaderScope() { Leave(); }
    ReaderScope(const ReaderScope&) = delete;
    ReaderScope& operator=(const ReaderScope&) = delete;

    void Enter() {
        if (!inside_) document_.ReaderEnter();
        inside_ = true;
    }
    void Leave() {
        if (inside_) document_.ReaderExit();
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
        : document_(document), entered_(document.TryReaderEnter()) {}
    ~TryReaderScope() {
        if (entered_) document_.ReaderExit();
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
        document_.WriterEnter();
    }
    ~WriterScope() { document_.WriterExit(); }
    WriterScope(const WriterScope&) = delete;
    WriterScope& operator=(const WriterScope&) = delete;

  private:
    AnimationDocument& document_;
};

}  // namespace kirto
