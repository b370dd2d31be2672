#pragma once
#include <string>

/** The messages that read or write a file: in Pd, a relative name refers to the patch's folder, and without a name a
    panel asks for one. */
namespace pdhost
{

struct FileMessage
{
    const char* selector;
    bool writes;
};

/** The row of a message; null if it does not involve a file. */
const FileMessage* fileMessage (const char* selector);

/** Resolves a file name against a folder. The word "none" is returned as is. */
std::string pathIn (const std::string& folder, const std::string& name);

}
