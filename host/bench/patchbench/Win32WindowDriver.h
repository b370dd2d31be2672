#pragma once
#include "host/bench/WindowDriver.h"
#include "host/bench/patchbench/Win32Input.h"
#include <map>
#include <windows.h>

namespace patchbench
{

/** The bench's window driver on Windows. It recognises the objects' dialog frames by the messages that Windows sends
    them, uses the real pointer and keyboard, and takes pictures off the screen. The external draws the frame's
    contents, so pages are switched by clicking their tabs. At most one driver at a time; main thread. */
class Win32WindowDriver : public bench::WindowDriver
{
public:
    Win32WindowDriver();
    ~Win32WindowDriver() override;

    Win32WindowDriver (const Win32WindowDriver&) = delete;
    Win32WindowDriver& operator= (const Win32WindowDriver&) = delete;

    void setSink (Sink sink) override { tell = std::move (sink); }
    bool pump() override;
    [[nodiscard]] bool isOnDisplay() const override { return true; }
    std::string turnPage (void* object, int page) override;
    std::string pointer (void* object, const bench::PointerEvent& event) override;
    std::string key (void* object, const std::string& description) override;
    std::string writePicture (void* object, const std::string& file) override;

private:
    static LRESULT CALLBACK seeMessage (int code, WPARAM wParam, LPARAM lParam);
    void see (const CWPRETSTRUCT& message);
    void seeCreation (HWND frame, const CREATESTRUCTW& creation);
    void report (HWND frame, const std::string& what) const;

    /** The window that holds the object's component; null, and a complaint, if it is not visible. */
    HWND contentOf (void* object, std::string& complaint) const;

    Sink tell;
    HHOOK hook = nullptr;
    Win32Input input;
    std::map<HWND, void*> owners;
    bool frontTold = false; // since the last pump
};

}
