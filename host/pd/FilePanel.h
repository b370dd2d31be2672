#pragma once
#include "host/pd/Pd.h"
#include <functional>
#include <string>

/** Pd's panel that asks for a file. It answers later, or not at all if it is cancelled. */
namespace pdhost
{

class FilePanel
{
public:
    using Answer = std::function<void (const std::string& path)>;

    explicit FilePanel (Answer whenChosen);
    ~FilePanel();
    FilePanel (const FilePanel&) = delete;
    FilePanel& operator= (const FilePanel&) = delete;

    /** False without a GUI to ask with. */
    bool ask (bool toWrite, const std::string& folder);

    /** Once, when the external is loaded. */
    static void registerClass();

private:
    struct Receiver;
    Receiver* receiver;
};

}
