#include "app/export/sequence_name.h"

#include <algorithm>

#include "base/text.h"

namespace kirto {

std::string SequenceFileName(const std::string& file_name, int32 index) {
    const size_t dot = std::min(file_name.find('.'), file_name.size());
    return file_name.substr(0, dot) + Format("%04d", index) + file_name.substr(dot);
}

}  // namespace kirto
