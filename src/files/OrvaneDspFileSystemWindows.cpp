#include "files/OrvaneDspFileSystem.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace qel::filesystem
{

namespace
{

/** Longer paths need the long-path prefix. */
constexpr std::size_t longestPlainPath = 247;

/** The most bytes in one call, whose count is 32 bits. */
constexpr std::size_t largestPiece = 1 << 30;

std::wstring toWide (const char* text, std::size_t size)
{
    const auto given = static_cast<int> (size);
    const auto needed = MultiByteToWideChar (CP_UTF8, 0, text, given, nullptr, 0);
    std::wstring wide (static_cast<std::size_t> (std::max (needed, 0)), L'\0');
    MultiByteToWideChar (CP_UTF8, 0, text, given, wide.data(), needed);
    return wide;
}

std::string fromWide (const wchar_t* wide, std::size_t size)
{
    const auto given = static_cast<int> (size);
    const auto needed = WideCharToMultiByte (CP_UTF8, 0, wide, given, nullptr, 0, nullptr, nullptr);
    std::string text (static_cast<std::size_t> (std::max (needed, 0)), '\0');
    WideCharToMultiByte (CP_UTF8, 0, wide, given, text.data(), needed, nullptr, nullptr);
    return text;
}

/** Converts a path for the system; text that cannot be a path becomes empty. */
std::wstring systemPath (const String& path)
{
    if (path.size() > longestPath)
        return {};
    auto wide = toWide (path.c_str(), path.size());
    const bool hasDrive = wide.size() > 1 && wide[1] == L':';
    return hasDrive && wide.size() > longestPlainPath ? L"\\\\?\\" + wide : wide;
}

Handle openOrdinary (const String& path, DWORD access, DWORD sharing, DWORD creation)
{
    const HANDLE file =
        CreateFileW (systemPath (path).c_str(), access, sharing, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return noHandle;
    if (GetFileType (file) == FILE_TYPE_DISK)
        return reinterpret_cast<Handle> (file);
    CloseHandle (file);
    return noHandle;
}

HANDLE systemHandle (Handle handle) { return reinterpret_cast<HANDLE> (handle); }

DWORD pieceOf (std::size_t count) { return static_cast<DWORD> (std::min (count, largestPiece)); }

}

Kind kindOf (const String& path)
{
    const auto attributes = GetFileAttributesW (systemPath (path).c_str());
    if (path.empty() || attributes == INVALID_FILE_ATTRIBUTES)
        return Kind::nothing;
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::folder : Kind::file;
}

bool makeFolder (const String& path) { return CreateDirectoryW (systemPath (path).c_str(), nullptr) != 0; }
bool removeFile (const String& path) { return DeleteFileW (systemPath (path).c_str()) != 0; }
bool removeFolder (const String& path) { return RemoveDirectoryW (systemPath (path).c_str()) != 0; }

bool move (const String& from, const String& to)
{
    return MoveFileExW (systemPath (from).c_str(), systemPath (to).c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED | MOVEFILE_WRITE_THROUGH) != 0;
}

String currentFolder()
{
    std::array<wchar_t, 8192> buffer{};
    const auto length = GetCurrentDirectoryW (static_cast<DWORD> (buffer.size()), buffer.data());
    return length < buffer.size() ? fromWide (buffer.data(), length) : std::string();
}

String environment (const char* name)
{
    const auto wideName = toWide (name, std::strlen (name));
    std::wstring value (GetEnvironmentVariableW (wideName.c_str(), nullptr, 0), L'\0');
    const auto length = GetEnvironmentVariableW (wideName.c_str(), value.data(), static_cast<DWORD> (value.size()));
    return length < value.size() ? fromWide (value.data(), length) : std::string();
}

Handle openForReading (const String& path)
{
    return openOrdinary (path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
}

Handle openForAppending (const String& path)
{
    const auto handle = openOrdinary (path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
    if (handle != noHandle)
        SetFilePointerEx (systemHandle (handle), LARGE_INTEGER{}, nullptr, FILE_END);
    return handle;
}

std::int64_t sizeOf (Handle handle)
{
    LARGE_INTEGER size = {};
    return GetFileSizeEx (systemHandle (handle), &size) != 0 ? size.QuadPart : -1;
}

std::int64_t readSome (Handle handle, void* bytes, std::size_t count)
{
    DWORD done = 0;
    return ReadFile (systemHandle (handle), bytes, pieceOf (count), &done, nullptr) != 0 ? std::int64_t (done) : -1;
}

std::int64_t writeSome (Handle handle, const void* bytes, std::size_t count)
{
    DWORD done = 0;
    return WriteFile (systemHandle (handle), bytes, pieceOf (count), &done, nullptr) != 0 ? std::int64_t (done) : -1;
}

bool flush (Handle handle) { return FlushFileBuffers (systemHandle (handle)) != 0; }

bool close (Handle handle) { return CloseHandle (systemHandle (handle)) != 0; }

}
