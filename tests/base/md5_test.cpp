#include "base/md5.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace kirto::test {
namespace {

std::vector<uint8> BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

std::string DigestOf(std::string_view text) {
    const std::vector<uint8> bytes = BytesOf(text);
    return Md5Hex(bytes.data(), bytes.size());
}

TEST(Md5, GivesTheDigestsOfTheStandardsTestSuite) {
    EXPECT_EQ(DigestOf(""), "d41d8cd98f00b204e9800998ecf8427e");
    EXPECT_EQ(DigestOf("a"), "0cc175b9c0f1b6a831c399e269772661");
    EXPECT_EQ(DigestOf("abc"), "900150983cd24fb0d6963f7d28e17f72");
    EXPECT_EQ(DigestOf("message digest"), "f96b697d7cb7938d525a2f31aaf161d0");
    EXPECT_EQ(DigestOf("abcdefghijklmnopqrstuvwxyz"), "c3fcd3d76192e4007dfb496cca67e13b");
    EXPECT_EQ(DigestOf("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"),
              "d174ab98d277d9f5a5611c2c9f419d9f");
    EXPECT_EQ(DigestOf("1234567890123456789012345678901234567890"
                       "1234567890123456789012345678901234567890"),
              "57edf4a22be3c955ac49da2e2107b67a");
}

TEST(Md5, PadsTextsAroundTheBlockSize) {
    EXPECT_EQ(DigestOf(std::string(55, 'x')), "04364420e25c512fd958a70738aa8f72");
    EXPECT_EQ(DigestOf(std::string(56, 'x')), "668a72d5ba17f08e62dabcafad6db14b");
    EXPECT_EQ(DigestOf(std::string(64, 'x')), "c1bb4f81d892b2d57947682aeb252456");
}

TEST(Md5, DoesNotDependOnHowTheBytesAreCut) {
    std::vector<uint8> bytes;
    for (int i = 0; i < 300; ++i)
        bytes.push_back(static_cast<uint8>(i * 7));
    const std::string whole = Md5Hex(bytes.data(), bytes.size());

    for (const size_t piece : {size_t{1}, size_t{63}, size_t{64}, size_t{65}}) {
        Md5 md5;
        for (size_t start = 0; start < bytes.size(); start += piece)
            md5.Add(&bytes[start], std::min(piece, bytes.size() - start));
        EXPECT_EQ(md5.Finish(), whole) << "pieces of " << piece;
    }
}

}  // namespace
}  // namespace kirto::test
