#pragma once
#include "files/OrvaneDspFile.h"

namespace qel
{

/** A file beside a target, to be written in its stead and moved over it when it is whole. It goes with this object. */
class TemporaryFile
{
public:
    explicit TemporaryFile (const File& targetFile);
    TemporaryFile (const TemporaryFile&) = delete;
    TemporaryFile& operator= (const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] const File& file() const noexcept { return temporary; }

    /** Moves the file onto the target, with up to five tries 100 ms apart. False if it was never written, if the
        target is a folder, or if the system refuses: then the target is as it was. */
    [[nodiscard]] bool replaceTarget() const;

private:
    File target;
    File temporary;
};

}
