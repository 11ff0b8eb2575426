#pragma once

#include <optional>
#include <string>

namespace simulator {

/// A secret in a file that only its owner reads, and that goes when this does.
class TokenFile {
public:
    /// In the file `path`, whose former content goes; without one in a new file beside other temporary ones.
    explicit TokenFile(const std::optional<std::string>& path);
    TokenFile(const TokenFile&) = delete;
    TokenFile& operator=(const TokenFile&) = delete;
    ~TokenFile();

    /// A sentence for the user when it could not be written; empty otherwise.
    const std::string& error() const { return mError; }

    const std::string& path() const { return mPath; }
    const std::string& token() const { return mToken; }

private:
    bool write(int descriptor);

    std::string mPath;
    std::string mToken;
    std::string mError;
};

} // namespace simulator
