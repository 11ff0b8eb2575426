#pragma once

#include <string>

namespace simulator {

/// The environment variable that names the file of a recording.
inline constexpr char RECORD_VARIABLE[] = "DISPLAYAPI_RECORD";

/// A script that is being written, line by line: what has been written is in the file, whatever becomes of the program.
class RecordingFile {
public:
    /// Makes it, for its owner alone: it may hold a password. A file with something in it is not touched. One into
    /// which nothing is written goes with this object, but where it has been there before.
    explicit RecordingFile(std::string path);
    RecordingFile(const RecordingFile&) = delete;
    RecordingFile& operator=(const RecordingFile&) = delete;
    ~RecordingFile();

    /// A sentence for the user once it cannot be written; empty while all is well.
    const std::string& error() const { return mError; }

    /// Nothing more is written after an error.
    void write(const std::string& line);

private:
    const std::string mPath;
    int mDescriptor = -1;
    const bool mIsNew;
    std::string mError;
};

} // namespace simulator
