#include "host/bench/Files.h"
#include "host/api/MaxApi.h"
#include <algorithm>
#include <cctype>
#include <cstring>
#include <deque>
#include <filesystem>
#include <vector>

namespace bench
{

namespace
{
namespace fs = std::filesystem;

struct FileTypeRow
{
    const char* extension;
    t_fourcc type;
};

constexpr t_fourcc code (const char (&text)[5])
{
    t_fourcc value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char> (text[i]);
    return value;
}

constexpr FileTypeRow fileTypes[] = {
    { ".txt", code ("TEXT") }, { ".xml", code ("TEXT") },  { ".json", code ("JSON") }, { ".maxpat", code ("JSON") },
    { ".png", code ("PNG ") }, { ".jpg", code ("JPEG") },  { ".jpeg", code ("JPEG") }, { ".wav", code ("WAVE") },
    { ".aif", code ("AIFF") }, { ".aiff", code ("AIFF") },
};

t_fourcc typeOf (const fs::path& path)
{
    auto extension = path.extension().u8string();
    std::transform (extension.begin(), extension.end(), extension.begin(),
                    [] (unsigned char c) { return static_cast<char> (std::tolower (c)); });
    for (const auto& row : fileTypes)
        if (extension == row.extension)
            return row.type;
    return 0;
}

/** The numbered folders and the answers to upcoming dialogs. Main thread. */
struct FileState
{
    std::vector<fs::path> folders;
    std::deque<std::optional<std::string>> answers;
    fs::path base;
};

FileState& state()
{
    static auto& all = *new FileState;
    return all;
}

std::int16_t numberOf (const fs::path& folder)
{
    auto& folders = state().folders;
    const auto found = std::find (folders.begin(), folders.end(), folder);
    const auto index = found - folders.begin();
    if (found == folders.end())
        folders.push_back (folder);
    return static_cast<std::int16_t> (index + 1);
}

const fs::path* folderOf (std::int16_t number)
{
    const auto& folders = state().folders;
    const auto index = static_cast<std::size_t> (number) - 1;
    return number < 1 || index >= folders.size() ? nullptr : &folders[index];
}

fs::path absolutePath (const std::string& text)
{
    std::error_code error;
    const auto path = fs::absolute (state().base / fs::u8path (text), error);
    return error ? fs::u8path (text) : path.lexically_normal();
}

bool isThere (const fs::path& path)
{
    std::error_code error;
    return fs::exists (path, error);
}

/** Returns false and writes nothing if the text does not fit. */
bool writeText (const std::string& text, char* buffer, int size)
{
    if (text.size() >= static_cast<std::size_t> (size))
        return false;
    strncpy_zero (buffer, text.c_str(), size);
    return true;
}

bool split (const fs::path& whole, char* name, std::int16_t* path)
{
    if (! writeText (whole.filename().u8string(), name, MAX_FILENAME_CHARS))
        return false;
    *path = numberOf (whole.parent_path());
    return true;
}

constexpr std::int16_t good = 0;
constexpr std::int16_t refused = -1;
constexpr std::int16_t cancelled = 1;

std::int16_t runDialog (char* name, std::int16_t* path, t_fourcc* outtype, const t_fourcc* types, std::int16_t ntypes)
{
    auto& answers = state().answers;
    if (name == nullptr || path == nullptr || answers.empty())
        return cancelled;
    const auto answer = answers.front();
    answers.pop_front();
    if (! answer || answer->empty())
        return cancelled;
    const auto whole = absolutePath (*answer);
    if (! split (whole, name, path))
        return cancelled;
    if (outtype != nullptr) {
        const auto type = typeOf (whole);
        *outtype = type != 0 || types == nullptr || ntypes < 1 ? type : types[0];
    }
    return good;
}

bool isAmong (t_fourcc type, const t_fourcc* types, std::int16_t ntypes)
{
    return type == 0 || types == nullptr || ntypes < 1 || std::find (types, types + ntypes, type) != types + ntypes;
}

std::int16_t wholePath (std::int16_t path, const char* file, char* name, bool mustExist)
{
    const auto* folder = folderOf (path);
    if (folder == nullptr || file == nullptr || name == nullptr)
        return refused;
    const auto whole = *file == 0 ? *folder : *folder / fs::u8path (file);
    if (mustExist && ! isThere (whole))
        return refused;
    return writeText (whole.generic_u8string(), name, MAX_PATH_CHARS) ? good : refused;
}
}

void addDialogAnswer (std::optional<std::string> path) { state().answers.push_back (std::move (path)); }
void forgetDialogAnswers() { state().answers.clear(); }
void setBaseFolder (const std::string& path) { state().base = fs::u8path (path); }

}

using namespace bench;

std::int16_t open_dialog (char* name, std::int16_t* path, t_fourcc* outtype, t_fourcc* types, std::int16_t ntypes)
{
    return runDialog (name, path, outtype, types, ntypes);
}

std::int16_t saveasdialog_extended (char* name, std::int16_t* path, t_fourcc* outtype, t_fourcc* types,
                                    std::int16_t ntypes)
{
    return runDialog (name, path, outtype, types, ntypes);
}

std::int16_t locatefile_extended (char* name, std::int16_t* path, t_fourcc* outtype, const t_fourcc* types,
                                  std::int16_t ntypes)
{
    if (name == nullptr || path == nullptr || *name == 0)
        return refused;
    const auto whole = absolutePath (name);
    const auto type = typeOf (whole);
    if (! isThere (whole) || ! isAmong (type, types, ntypes) || ! split (whole, name, path))
        return refused;
    if (outtype != nullptr)
        *outtype = type;
    return good;
}

std::int16_t path_topathname (std::int16_t path, const char* file, char* name)
{
    return wholePath (path, file, name, true);
}

std::int16_t path_topotentialname (std::int16_t path, const char* file, char* name, std::int16_t check)
{
    const auto* folder = folderOf (path);
    if (check != 0 && (folder == nullptr || ! isThere (*folder)))
        return refused;
    return wholePath (path, file, name, false);
}

std::int16_t path_frompathname (const char* name, std::int16_t* path, char* filename)
{
    if (name == nullptr || path == nullptr || filename == nullptr || *name == 0)
        return refused;
    const auto whole = absolutePath (name);
    return isThere (whole.parent_path()) && split (whole, filename, path) ? good : refused;
}

std::int16_t path_nameconform (const char* source, char* destination, t_clong style, t_clong type)
{
    if (source == nullptr || destination == nullptr)
        return refused;
    std::string text = source;
    if (type == PATH_TYPE_ABSOLUTE && ! text.empty())
        text = absolutePath (text).generic_u8string();
    else if (type == PATH_TYPE_RELATIVE && ! text.empty())
        text = absolutePath (text).lexically_relative (absolutePath (".")).generic_u8string();
#if defined(_WIN32)
    const bool backslashes = style == PATH_STYLE_NATIVE || style == PATH_STYLE_NATIVE_WIN;
#else
    const bool backslashes = style == PATH_STYLE_NATIVE_WIN;
#endif
    std::replace (text.begin(), text.end(), backslashes ? '/' : '\\', backslashes ? '\\' : '/');
    return writeText (text, destination, MAX_PATH_CHARS) ? good : refused;
}

std::int16_t path_getdefault()
{
    std::error_code error;
    return numberOf (fs::current_path (error));
}
