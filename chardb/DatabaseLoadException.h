#pragma once

#include <exception>
#include <string>

namespace ZavorenCommon {

/// Any failure of the character database reader; `what()` is the message shown to the learner.
class DatabaseLoadException : public std::exception {
public:
    explicit DatabaseLoadException(std::string message) : m_message(std::move(message)) { }
    const char* what() const noexcept override { return m_message.c_str(); }

private:
    std::string m_message;
};

} // namespace ZavorenCommon
