#include "base/types.h"

namespace kirto {

std::string StatusText(status_t status) {
    switch (status) {
        case B_OK:
            return "No error";
        case B_NO_MEMORY:
            return "Out of memory";
        case B_IO_ERROR:
            return "Input/output error";
        case B_BAD_VALUE:
            return "Invalid argument";
        case B_ENTRY_NOT_FOUND:
            return "No such file or attribute";
        case B_NAME_NOT_FOUND:
            return "Name not found";
        case B_BAD_INDEX:
            return "Index out of range";
        case B_BAD_TYPE:
            return "Wrong type";
        case B_BAD_SEM_ID:
            return "No such semaphore";
        case B_WOULD_BLOCK:
            return "Operation would block";
        case B_NOT_ALLOWED:
            return "Operation not allowed";
        case B_NO_INIT:
            return "Not initialized";
        case B_BAD_DATA:
            return "Damaged data";
        case B_NO_TRANSLATOR:
            return "No translator for this format";
        case B_CANCELED:
            return "Cancelled";
        default:
            return "General error";
    }
}

}  // namespace kirto
