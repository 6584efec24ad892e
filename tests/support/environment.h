// Environment variables for the length of a test.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace kirto::test {

// Sets a variable, or unsets it for a null value, until the end of the scope.
class ScopedEnvironment {
  public:
    ScopedEnvironment(const char* name, const char* value) : name_(name) {
        if (const char* previous = std::getenv(name)) previous_ = previous;
        Set(value);
    }
    ~ScopedEnvironment() { Set(previous_ ? previous_->c_str() : nullptr); }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

  private:
    void Set(const char* value) {
        if (value) {
            setenv(name_.c_str(), value, 1);
        } else {
            unsetenv(name_.c_str());
        }
    }

    std::string name_;
    std::optional<std::string> previous_;
};

}  // namespace kirto::test
