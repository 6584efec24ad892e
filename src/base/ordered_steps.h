#pragma once

#include <functional>
#include <optional>

#include "base/types.h"

namespace kirto {

// What RunInOrder does to the pieces of a sequence. All but the work itself happens on the calling
// thread, in the order of the pieces; there alone may be told how far the work is, and anything
// else be said or changed.
template <typename Input, typename Output>
struct OrderedSteps {
    // The next piece, or nothing after the last one. Called ahead of the pieces' turns.
    std::function<std::optional<Input>()> next;
    // A piece's turn comes, whether it has been worked on or not. False ends everything. May be
    // empty.
    std::function<bool(const Input&)> begin;
    // A plain function of the piece, on any thread: it changes nothing that others see and asks its
    // Work, if any, whether to end early. worker: 0 to threads - 1, for what it may use again from
    // piece to piece; one piece at a time has that number. Nothing when memory is short.
    std::function<std::optional<Output>(const Input&, int32 worker)> work;
    // Called every now and then while there is nothing to do but to wait. May be empty.
    std::function<void()> waiting;
    // What came of the piece. False ends everything.
    std::function<bool(const Input&, std::optional<Output>)> take;
};

}  // namespace kirto
