#include "simulator/rpc/Base64.h"

#include <gtest/gtest.h>

namespace {

TEST(Base64, ThreeBytesAreFourCharacters)
{
    const std::pair<std::string, std::string> cases[] = {
        {"", ""}, {"f", "Zg=="}, {"fo", "Zm8="}, {"foo", "Zm9v"}, {"foob", "Zm9vYg=="}, {"\xFB\xFF\xFE", "+//+"}};
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(simulator::toBase64(bytes), text);
}

} // namespace
