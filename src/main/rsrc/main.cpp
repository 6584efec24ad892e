// kirto-rsrc: makes the resource file that the program's windows and icons come from.
#include <cstdio>
#include <memory>

#include "kit/file.h"
#include "main/rsrc/resource_compiler.h"

namespace {

bool WriteFile(const std::string& path, const std::vector<uint8>& bytes) {
    const std::unique_ptr<BFile> file = BFile::CreateReplacing(path);
    file->Write(bytes.data(), bytes.size());
    return file->Commit() == B_OK;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: kirto-rsrc MANIFEST.toml FILE.rsrc\n", stderr);
        return 2;
    }
    const kirto::ResourceCompiler compiler(argv[1]);
    if (!compiler.Error().empty()) {
        std::fprintf(stderr, "kirto-rsrc: %s\n", compiler.Error().c_str());
        return 1;
    }
    if (WriteFile(argv[2], compiler.Container())) return 0;
    std::fprintf(stderr, "kirto-rsrc: %s can't be written.\n", argv[2]);
    return 1;
}
