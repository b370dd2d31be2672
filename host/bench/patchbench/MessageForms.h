#pragma once
#include <string>
#include <vector>

namespace patchbench
{

/** One way to write a message: literal words, choices "a|b", and placeholders in capitals. */
struct MessageForm
{
    std::string form;    // "source INDEX xyz X Y Z"
    std::string meaning; // one line
    std::string example; // "source 1 xyz 1 2 0"

    /** The form's first word. */
    [[nodiscard]] std::string message() const { return form.substr (0, form.find (' ')); }
};

using MessageForms = std::vector<MessageForm>;

/** Parses the table of messages: one row per line, "form | meaning | example"; other lines are skipped. */
MessageForms readMessageForms (const std::string& table);

/** Splits a text at separators. */
std::vector<std::string> split (const std::string& text, const std::string& separator);

}
