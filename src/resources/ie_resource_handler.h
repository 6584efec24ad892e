#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "kit/application.h"
#include "kit/entry_ref.h"
#include "kit/messenger.h"
#include "kit/window.h"
#include "resources/resources.h"

// Finds what windows are made of in the program's resource files, and keeps the list of the windows
// made so. Belongs to the application. The list belongs to the windows' thread; looking up
// resources is safe on any thread while no file is being added.
class IEResourceHandler {
  public:
    // app is asked to quit when the last window goes; null for nobody.
    IEResourceHandler(const entry_ref& file, BApplication* app);

    // Where the file can't be opened the user is told and Error() is -1 from then on.
    void AddResourceFile(const entry_ref& file);
    // The resource of the first file, in the order they were added, that has one of that type and
    // name; nothing if none has. The bytes live as long as this object.
    std::optional<std::span<const uint8>> FindResource(std::string_view name, type_code type) const;

    // Modal windows are not listed, and no window is twice.
    void AddToWindowList(const BWindow* window);
    // Asks the application to quit when the window was not in the list and either no window is
    // listed any more or none exists. Removing a window that is listed never asks; modal windows
    // are ignored.
    void RemoveFromWindowList(const BWindow* window);

    // 0, or -1.
    int32 Error() const { return error_; }

  private:
    void DropInvalidMessengers();

    BApplication* app_;
    std::vector<std::unique_ptr<BResources>> files_;
    std::vector<BMessenger> windows_;
    int32 error_ = 0;
};
