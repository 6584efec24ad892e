#include "base/natural_order.h"

#include <algorithm>
#include <filesystem>

namespace kirto {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

unsigned char Folded(char c) {
    return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

// Takes the number that the text begins with, without the zeros before it.
std::string_view TakeNumber(std::string_view* text) {
    const char* const end = std::find_if_not(text->begin(), text->end(), IsDigit);
    std::string_view digits(text->begin(), end);
    text->remove_prefix(digits.size());
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

// Below 0, 0 or above 0 as a comes before, with or after b.
int Compare(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        if (IsDigit(a.front()) && IsDigit(b.front())) {
            const std::string_view one = TakeNumber(&a);
            const std::string_view other = TakeNumber(&b);
            if (one.size() != other.size()) return one.size() < other.size() ? -1 : 1;
            if (const int order = one.compare(other)) return order;
            continue;
        }
        const int order = Folded(a.front()) - Folded(b.front());
        if (order != 0) return order;
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

void AddFolder(const std::string& path, std::vector<std::string>* files) {
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(path, ignored)) {
        const bool hidden = entry.path().filename().string().starts_with('.');
        if (!hidden && entry.is_regular_file(ignored)) files->push_back(entry.path().string());
    }
}

}  // namespace

bool ComesBefore(std::string_view a, std::string_view b) {
    const int order = Compare(a, b);
    return order != 0 ? order < 0 : a < b;
}

std::vector<std::string> InNaturalOrder(const std::vector<std::string>& paths) {
    std::vector<std::string> files;
    std::error_code ignored;
    for (const std::string& path : paths) {
        if (std::filesystem::is_directory(path, ignored)) {
            AddFolder(path, &files);
        } else {
            files.push_back(path);
        }
    }
    std::sort(files.begin(), files.end(), ComesBefore);
    return files;
}

}  // namespace kirto
