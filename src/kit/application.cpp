#include "kit/application.h"

void BApplication::DispatchMessage(BMessage* message, BHandler* handler) {
    if (handler == this && message->what == B_REFS_RECEIVED) {
        RefsReceived(message);
    } else if (handler == this && message->what == B_ABOUT_REQUESTED) {
        AboutRequested();
    } else {
        BLooper::DispatchMessage(message, handler);
    }
}
