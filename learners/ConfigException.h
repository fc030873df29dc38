#pragma once

#include <exception>
#include <string>

namespace ZavorenCommon {

/// Any failure of the learner store; `what()` is the message shown to the learner.
class ConfigException : public std::exception {
public:
    explicit ConfigException(std::string message) : m_message(std::move(message)) { }
    const char* what() const noexcept override { return m_message.c_str(); }

private:
    std::string m_message;
};

} // namespace ZavorenCommon
