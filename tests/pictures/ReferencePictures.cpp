#include "pictures/ReferencePictures.h"

#include "host/lcd/Png.h"

#include <algorithm>

namespace {

constexpr std::uint8_t WRONG = 3;
constexpr std::uint8_t RIGHT_INK = 1;

host::Picture differenceOf(const host::Picture& reference, const host::Picture& actual)
{
    host::Picture difference = reference;
    std::transform(reference.pixels.begin(), reference.pixels.end(), actual.pixels.begin(), difference.pixels.begin(),
                   [](std::uint8_t one, std::uint8_t other) -> std::uint8_t {
                       return one != other ? WRONG : one != 0 ? RIGHT_INK : 0;
                   });
    return difference;
}

std::string sizeOf(const host::Picture& picture)
{
    return std::to_string(picture.width) + " x " + std::to_string(picture.height);
}

} // namespace

ReferencePictures::ReferencePictures(std::filesystem::path references, std::filesystem::path output)
    : mReferences(std::move(references)), mOutput(std::move(output))
{
}

std::string ReferencePictures::compare(const std::string& name, const host::Picture& actual) const
{
    const auto reference = host::readPng((mReferences / (name + ".png")).string());
    if (!reference)
        return report(name, actual, {}, "There is no reference picture");
    if (reference->width != actual.width || reference->height != actual.height)
        return report(name, actual, {}, "The reference is " + sizeOf(*reference) + ", the screen " + sizeOf(actual));
    const host::Picture difference = differenceOf(*reference, actual);
    const auto wrong = std::count(difference.pixels.begin(), difference.pixels.end(), WRONG);
    return wrong == 0 ? std::string() : report(name, actual, difference, std::to_string(wrong) + " pixels differ");
}

std::string ReferencePictures::update(const std::string& name, const host::Picture& actual) const
{
    return host::writePng(actual, (mReferences / (name + ".png")).string());
}

std::string ReferencePictures::report(const std::string& name, const host::Picture& actual,
                                      const host::Picture& difference, const std::string& problem) const
{
    std::filesystem::create_directories(mOutput);
    const auto path = mOutput / (name + ".png");
    std::string error = host::writePng(actual, path.string());
    if (error.empty() && difference.width > 0)
        error = host::writePng(difference, (mOutput / (name + "-difference.png")).string());
    return problem + ": " + (error.empty() ? "see " + path.string() : error);
}
