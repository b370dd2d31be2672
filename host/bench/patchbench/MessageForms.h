#pragma once
#include <string>
#include <vector>

namespace patchbench
{

/** How one message can be written: literal words, choices "a|b", and words in capitals that stand for something. */
struct MessageForm
{
    std::string form;    // "source INDEX xyz X Y Z"
    std::string meaning; // one line
    std::string example; // "source 1 xyz 1 2 0"

    /** First word of the form. */
    [[nodiscard]] std::string message() const { return form.substr (0, form.find (' ')); }
};

using MessageForms = std::vector<MessageForm>;

/** Reads the table of messages: a line "form | meaning | example" a row; other lines are passed over. */
MessageForms readMessageForms (const std::string& table);

/** Parts of a text between separators. */
std::vector<std::string> split (const std::string& text, const std::string& separator);

}
