#pragma once
#include "files/OrvaneDspFile.h"
#include "files/OrvaneDspFileHandle.h"
#include "memory/OrvaneDspMemoryOutput.h"

#include <cstdint>

namespace qel
{

/** Appends to a file, and creates it and its folder if needed. Others may read the file meanwhile. */
class FileWriter
{
public:
    /** Throws "Couldnt create or write in folder " and the quoted folder. If the file itself can't be opened, the first
        write fails. */
    explicit FileWriter (const File& file);

    /** Returns whether all bytes were written. */
    bool write (const MemoryOutput& bytes);
    /** Flushes to disk and closes; false if that failed. Otherwise the destructor closes. */
    bool finish();

    [[nodiscard]] const File& file() const noexcept { return target; }
    /** Offset of the next byte from the start of the file. */
    [[nodiscard]] std::uint64_t position() const noexcept { return writePosition; }

private:
    File target;
    std::uint64_t writePosition = 0;
    FileHandle handle;
};

}
