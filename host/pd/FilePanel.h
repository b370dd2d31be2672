#pragma once
#include "host/pd/Pd.h"
#include <functional>
#include <string>

/** Pd's file panel. Answers asynchronously, or never if it is cancelled. */
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

    /** Opens the panel; false without a GUI. */
    bool ask (bool toWrite, const std::string& folder);

    /** Call once, when the external is loaded. */
    static void registerClass();

private:
    struct Receiver;
    Receiver* receiver;
};

}
