#pragma once
#include "files/OrvaneDspFileSystem.h"

namespace qel
{

/** Owns an open file and closes it. Does not raise. */
class FileHandle
{
public:
    FileHandle() = default;
    explicit FileHandle (filesystem::Handle opened) noexcept : handle (opened) {}
    FileHandle (const FileHandle&) = delete;
    FileHandle& operator= (const FileHandle&) = delete;
    ~FileHandle() { close(); }

    [[nodiscard]] bool isOpen() const noexcept { return handle != filesystem::noHandle; }
    /** In bytes; negative when it can't be told. */
    [[nodiscard]] std::int64_t size() const;
    /** Reads until the buffer is full or the file ends; the count of bytes. */
    std::size_t read (void* bytes, std::size_t count);
    /** Writes until all is out or the system refuses; the count of bytes that went out. */
    std::size_t write (const void* bytes, std::size_t count);
    /** Closes, with all of it on the disk; false if that failed or no file was open. */
    bool finish();

private:
    void close() noexcept;

    filesystem::Handle handle = filesystem::noHandle;
};

}
