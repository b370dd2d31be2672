#include "files/OrvaneDspTemporaryFile.h"
#include "files/OrvaneDspRandom48.h"
#include "files/OrvaneDspRetry.h"

namespace qel
{

namespace
{

File besideTarget (const File& target)
{
    const auto base = target.nameWithoutExtension() + "_temp" + String::hex (Random48::shared().next());
    return target.parent().uniqueChild (base, target.extension(), UniqueName());
}

}

TemporaryFile::TemporaryFile (const File& targetFile) : target (targetFile), temporary (besideTarget (targetFile)) {}

TemporaryFile::~TemporaryFile() { temporary.removeWithRetry(); }

bool TemporaryFile::replaceTarget() const
{
    if (! temporary.existsAsFile() || target.isFolder())
        return false;
    return retried (5, 100, [this] { return temporary.moveTo (target); });
}

}
