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

/// Whether a GUI thread is recorded and it is the caller: nobody but him carries out what he posts.
bool isRecordedGuiThread();

} // namespace DisplayAPI
