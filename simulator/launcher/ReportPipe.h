#pragma once

#include <string>

namespace simulator {

/// The pipe by which a script's result comes from the application.
class ReportPipe {
public:
    ReportPipe();
    ReportPipe(const ReportPipe&) = delete;
    ReportPipe& operator=(const ReportPipe&) = delete;
    ~ReportPipe();

    int writeEnd() const { return mWriteEnd; }
    void closeWriteEnd();

    /// Readable while there is news; -1 when there will be no more.
    int descriptor() const { return mReadEnd; }

    /// Takes what is there, without waiting. Returns whether there was anything.
    bool readAvailable();

    const std::string& text() const { return mText; }

private:
    int mReadEnd = -1;
    int mWriteEnd = -1;
    std::string mText;
};

} // namespace simulator
