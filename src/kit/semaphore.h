// Counting semaphores by id, and sleeping. Callable from any thread.
#pragma once

#include "base/types.h"

using sem_id = int32;

// A new semaphore of the given count (0 or more), or a negative status. The name, which may be
// null, is for debugging. The id of a deleted semaphore is not given to another one soon.
sem_id create_sem(int32 count, const char* name);
// Wakes all waiters with B_BAD_SEM_ID. B_BAD_SEM_ID when there is no such semaphore.
status_t delete_sem(sem_id id);
// Takes one unit, waiting for it. B_BAD_SEM_ID when the semaphore is unknown or deleted meanwhile.
status_t acquire_sem(sem_id id);
// As acquire_sem, but B_WOULD_BLOCK instead of waiting.
status_t try_acquire_sem(sem_id id);
// Gives one unit back. B_BAD_SEM_ID when the semaphore is unknown, B_BAD_VALUE when its count is at
// the largest int32.
status_t release_sem(sem_id id);

// Sleeps for at least so many microseconds; not at all for 0 and below.
status_t snooze(bigtime_t microseconds);
