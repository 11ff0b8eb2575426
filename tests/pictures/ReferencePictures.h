#pragma once

#include "host/lcd/Lcd.h"

#include <filesystem>
#include <string>

/// Pictures that are known to be right, one PNG file each, and where to put what differs from them.
class ReferencePictures {
public:
    ReferencePictures(std::filesystem::path references, std::filesystem::path output);

    /// Compares pixel by pixel. Returns what is wrong, as a sentence; empty when all is well. A missing reference is
    /// wrong. What differs is written to the output folder: NAME.png as it is, NAME-difference.png with each wrong
    /// pixel dark.
    std::string compare(const std::string& name, const host::Picture& actual) const;

    /// Makes `actual` the reference. Returns an error as a sentence; empty when all is well.
    std::string update(const std::string& name, const host::Picture& actual) const;

private:
    std::string report(const std::string& name, const host::Picture& actual, const host::Picture& difference,
                       const std::string& problem) const;

    std::filesystem::path mReferences;
    std::filesystem::path mOutput;
};
