#include "resources/resource_file_path.h"

#include "base/program_files.h"

namespace kirto {

std::string ResourceFilePath() {
    return ResourceFilePath(ProgramFolder().value_or("."));
}

std::string ResourceFilePath(const std::string& program_folder) {
    return ProgramFile(program_folder, "kirto.rsrc", KIRTO_DATA_FOLDER);
}

}  // namespace kirto
