#include "host/bench/patchbench/Commands.h"
#include <algorithm>

namespace patchbench
{

namespace
{
void printRow (const std::string& left, const std::string& right)
{
    constexpr std::size_t column = 42;
    const auto gap = left.size() < column ? column - left.size() : 2;
    Session::print ("# " + left + std::string (gap, ' ') + right);
}

void explain (const Command& command)
{
    Session::print (std::string ("# ") + command.usage);
    Session::print (std::string ("#     ") + command.summary);
    Session::print (std::string ("# example: ") + command.example);
}

void explain (const MessageForm& form)
{
    Session::print ("# send NAME " + form.form);
    Session::print ("#     " + form.meaning);
    Session::print ("# example: send verb " + form.example);
}

/** Without a word, lists all commands, one line each; with one, shows a command or a message in detail. */
void help (Session& session, const std::vector<bench::Word>& words)
{
    if (words.size() == 1) {
        for (const auto& command : allCommands())
            printRow (command.usage, command.summary);
        return Session::print ("# help COMMAND and help MESSAGE give an example.");
    }
    const auto& topic = words[1].text;
    const auto* command = findCommand (topic);
    if (command != nullptr)
        explain (*command);
    bool isMessage = false;
    for (const auto& form : session.externals().forms)
        if (form.message() == topic) {
            explain (form);
            isMessage = true;
        }
    if (command == nullptr && ! isMessage)
        throw CommandError ("there is no help on \"" + topic + "\"; help lists the commands");
}
}

const std::vector<Command>& helpCommands()
{
    static const std::vector<Command> table = {
        { "help", 0, 1, "help [COMMAND|MESSAGE]", "Lists the commands; explains one, or a message, with an example.",
          "help send", help },
    };
    return table;
}

}
