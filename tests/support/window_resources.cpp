#include "support/window_resources.h"

#include <gtest/gtest.h>

#include "resources/resources_writer.h"
#include "resources/window_layout.h"

namespace kirto::test {

namespace {

entry_ref Written(const TemporaryFolder& folder, const ResourcesWriter& writer) {
    const std::string path = folder.File("windows.rsrc");
    WriteBytes(path, writer.Container());
    return entry_ref(path);
}

}  // namespace

BMessage ArchiveOfLayout(const std::string& path) {
    BMessage archive;
    std::string error;
    EXPECT_TRUE(CompileWindowLayout(path, &archive, &error)) << error;
    return archive;
}

WindowResources::WindowResources(const std::vector<Window>& windows, BApplication* app) {
    ResourcesWriter writer;
    int32 id = 0;
    for (const Window& window : windows) {
        writer.Add(kWindowArchiveType, id++, window.name, window.archive.Flatten());
    }
    handler_ = std::make_unique<IEResourceHandler>(Written(folder_, writer), app);
}

}  // namespace kirto::test
