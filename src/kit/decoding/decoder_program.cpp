#include "kit/decoding/decoder_program.h"

#include "base/program_files.h"

namespace kirto {

std::string DecoderProgram() {
    // Not looked for in the working folder, where somebody else may have put one.
    const auto folder = ProgramFolder();
    return folder ? ProgramFile(*folder, "kirto-decode", KIRTO_HELPER_FOLDER) : std::string();
}

}  // namespace kirto
