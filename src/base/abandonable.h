#pragma once

#include <chrono>
#include <functional>

#include "base/work.h"

namespace kirto {

// Runs the task on a thread of its own and waits for it, so that the work can be stopped where the
// task has no place to stop: in somebody else's decoder. Then it goes on unheeded until it is done.
// Returns false in that case. The task must own whatever it touches, but for what outlives
// WaitForAbandoned(). What it throws is thrown here.
bool FinishOrAbandon(Work& work, std::function<void()> task);

// The same where the work is not to be told that it goes on. given_up: asked every now and then, on
// this thread, whether the task is to be abandoned.
bool FinishOrAbandon(const std::function<bool()>& given_up, std::function<void()> task);

// Waits for the tasks that were abandoned, at most that long. False when some are still at it.
bool WaitForAbandoned(std::chrono::milliseconds longest);

// The status that a program's main function is to end with, once everything else is done. Where
// abandoned tasks are still at it a second later, ends the program here: the usual way would take
// away what they use.
int ExitStatus(int status);

}  // namespace kirto
