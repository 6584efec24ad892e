#include "support/source_folder.h"

namespace kirto::test {

std::filesystem::path SourceFolder() {
    return KIRTO_SOURCE_FOLDER;
}

}  // namespace kirto::test
