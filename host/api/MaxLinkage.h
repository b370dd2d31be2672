#pragma once

/** Linkage of the host's operations. Every declaration starts with MAX_API; the import library's list of names is read
    from these lines (see CMakeLists.txt). HOST_BUILD is defined only when compiling the bench itself. Printf-like
    operations carry MAX_FORMAT, so that the compiler checks their arguments. */
#if defined(_WIN32) && defined(HOST_BUILD)
#define MAX_API __declspec(dllexport)
#elif defined(_WIN32)
#define MAX_API __declspec(dllimport)
#else
#define MAX_API __attribute__ ((visibility ("default")))
#endif

#if defined(__MINGW32__)
#define MAX_FORMAT(text, first) __attribute__ ((format (gnu_printf, text, first)))
#else
#define MAX_FORMAT(text, first) __attribute__ ((format (printf, text, first)))
#endif

/** An external's export: its entry point. */
#if defined(_WIN32)
#define MAX_EXPORT extern "C" __declspec(dllexport)
#else
#define MAX_EXPORT extern "C" __attribute__ ((visibility ("default")))
#endif
