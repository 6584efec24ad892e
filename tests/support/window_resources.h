// Resource files for windows under test.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kit/message.h"
#include "resources/ie_resource_handler.h"
#include "support/test_support.h"

namespace kirto::test {

// The archive of the layout; the test fails without one.
BMessage ArchiveOfLayout(const std::string& path);

// A handler of one resource file, made of windows' archives.
class WindowResources {
  public:
    struct Window {
        std::string name;
        BMessage archive;
    };
    explicit WindowResources(const std::vector<Window>& windows, BApplication* app = nullptr);

    IEResourceHandler& Handler() { return *handler_; }

  private:
    TemporaryFolder folder_;
    std::unique_ptr<IEResourceHandler> handler_;
};

}  // namespace kirto::test
