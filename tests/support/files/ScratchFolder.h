#pragma once
#include "files/OrvaneDspFile.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

/** A temporary folder, removed with this object. */
class ScratchFolder
{
public:
    ScratchFolder()
    {
        auto name = (std::filesystem::temp_directory_path() / "halcyra XXXXXX").string();
        path = mkdtemp (name.data());
    }
    ScratchFolder (const ScratchFolder&) = delete;
    ScratchFolder& operator= (const ScratchFolder&) = delete;
    ~ScratchFolder() { std::filesystem::remove_all (path); }

    [[nodiscard]] std::filesystem::path operator/ (const std::string& name) const { return path / name; }
    [[nodiscard]] qel::File file (const std::string& name) const { return qel::File ((path / name).string()); }

    qel::File write (const std::string& name, const std::string& bytes) const
    {
        std::ofstream (path / name, std::ios::binary) << bytes;
        return file (name);
    }

    /** The names of its entries. */
    [[nodiscard]] std::set<std::string> names() const
    {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator (path))
            found.insert (entry.path().filename().string());
        return found;
    }

private:
    std::filesystem::path path;
};
