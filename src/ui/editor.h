#pragma once

#include "app/file_panel.h"
#include "document/animation_document.h"
#include "platform/messenger.h"
#include "platform/translator_roster.h"

class IEResourceHandler;

namespace kirto {

// What windows are made for: the document they show, and where their commands go (by way of a
// CommandPort, so that changes count at once). Everything outlives every window. The document is
// read only by way of ShownDocument::Take.
struct Editor {
    AnimationDocument& document;
    BMessenger application;
    FilePanelSource& panels;
    BTranslatorRoster& roster;
    IEResourceHandler* resources;  // null where no window is built from resources
};

}  // namespace kirto
