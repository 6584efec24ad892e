#pragma once

#include <functional>
#include <memory>

#include "app/file_panel.h"
#include "app/save_check.h"
#include "document/animation_document.h"
#include "kit/messenger.h"
#include "kit/translator_roster.h"

class IEResourceHandler;

namespace kirto {

class RecentList;

// What windows work on: the document they show, and the target of their commands (through a
// CommandPort, so that changes count at once). Everything outlives every window. The document is
// read only through ShownDocument::Take.
struct Editor {
    AnimationDocument& document;
    BMessenger application;
    FilePanelSource& panels;
    BTranslatorRoster& roster;
    IEResourceHandler* resources;  // null if no window is built from resources
    // What was found in the last save; empty where saves are not checked.
    std::function<std::shared_ptr<const SaveCheck::Finding>()> finding = {};
    RecentList* recent = nullptr;  // null where no files are remembered
};

}  // namespace kirto
