#pragma once
#include "files/OrvaneDspFile.h"
#include "files/OrvaneDspFileWriter.h"

namespace qel
{

/** A file next to a target, written in its place and moved over it once complete. Removed with this object. */
class TemporaryFile
{
public:
    explicit TemporaryFile (const File& targetFile);
    TemporaryFile (const TemporaryFile&) = delete;
    TemporaryFile& operator= (const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] const File& file() const noexcept { return temporary; }

    /** Moves the file onto the target, trying up to five times 100 ms apart. False if it was never written, if the
        target is a folder, or if the system fails: the target is then unchanged. */
    [[nodiscard]] bool replaceTarget() const;

private:
    File target;
    File temporary;
};

/** Writes a file safely: `write` receives a FileWriter for a temporary file, which replaces the target once `write` has
    returned true and all data is on the disk. Otherwise returns false and leaves the old file unchanged. Throws what
    FileWriter and `write` throw. */
template <typename Write>
[[nodiscard]] bool replaceFile (const File& file, Write&& write)
{
    const TemporaryFile temporary (file);
    FileWriter writer (temporary.file());
    return write (writer) && writer.finish() && temporary.replaceTarget();
}

}
