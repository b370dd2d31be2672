#pragma once
#include "files/OrvaneDspFileSystem.h"

namespace qel
{

/** Owns an open file and closes it. Never throws. */
class FileHandle
{
public:
    FileHandle() = default;
    explicit FileHandle (filesystem::Handle opened) noexcept : handle (opened) {}
    FileHandle (const FileHandle&) = delete;
    FileHandle& operator= (const FileHandle&) = delete;
    ~FileHandle() { close(); }

    [[nodiscard]] bool isOpen() const noexcept { return handle != filesystem::noHandle; }
    /** In bytes; negative if unknown. */
    [[nodiscard]] std::int64_t size() const;
    /** Reads until the buffer is full or the file ends; returns the number of bytes read. */
    std::size_t read (void* bytes, std::size_t count);
    /** Writes until all is written or the system fails; returns the number of bytes written. */
    std::size_t write (const void* bytes, std::size_t count);
    /** Flushes to disk and closes; false if that failed or no file was open. */
    bool finish();

private:
    void close() noexcept;

    filesystem::Handle handle = filesystem::noHandle;
};

}
