#pragma once

namespace DisplayAPI {

/// Opens an operation that only the GUI thread may call. Debug and sanitizer builds end the program with a sentence
/// where another thread does; other builds look at nothing. While no GUI thread is recorded, or no event filter
/// installed, every thread carries out what it calls, and may.
#ifdef DISPLAYAPI_CHECKED
void onlyOnGuiThread(const char* operation);
#else
inline void onlyOnGuiThread(const char*) {}
#endif

} // namespace DisplayAPI
