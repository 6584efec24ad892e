#include "base/byte_reader.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace kirto::test {

TEST(ByteReader, ReadsLittleEndianNumbers) {
    const std::vector<uint8> bytes = {0x01, 0xff, 0x34, 0x12, 0xfe, 0xff, 0x78, 0x56, 0x34, 0x92};
    ByteReader reader(bytes);
    EXPECT_EQ(reader.U8(), 1);
    EXPECT_EQ(reader.S8(), -1);
    EXPECT_EQ(reader.U16(), 0x1234);
    EXPECT_EQ(reader.S16(), -2);
    EXPECT_EQ(reader.U32(), 0x92345678u);
    EXPECT_EQ(reader.Left(), 0u);
    EXPECT_FALSE(reader.Overrun());
}

TEST(ByteReader, ReadsWideNumbersAndRealOnes) {
    const std::vector<uint8> bytes = {0xfd, 0xff, 0xff, 0xff,                           // -3
                                      1,    2,    3,    4,    5,    6,    7,    0x80,   // 64 bits
                                      0xfe, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff,   // -2
                                      0,    0,    0x20, 0x41,                           // 10.0f
                                      0,    0,    0,    0,    0,    0,    0xf8, 0xbf};  // -1.5
    ByteReader reader(bytes);
    EXPECT_EQ(reader.S32(), -3);
    EXPECT_EQ(reader.U64(), 0x8007060504030201u);
    EXPECT_EQ(reader.S64(), -2);
    EXPECT_EQ(reader.F32(), 10.0f);
    EXPECT_EQ(reader.F64(), -1.5);
    EXPECT_FALSE(reader.Overrun());
    EXPECT_EQ(reader.U64(), 0u);
    EXPECT_TRUE(reader.Overrun());
}

TEST(ByteReader, GivesBytesWhereTheyLie) {
    const std::vector<uint8> bytes = {1, 2, 3, 4};
    ByteReader reader(bytes);
    reader.U8();
    const std::span<const uint8> part = reader.Bytes(2);
    EXPECT_EQ(part.data(), bytes.data() + 1);
    EXPECT_EQ(part.size(), 2u);
    EXPECT_EQ(reader.U8(), 4);
    EXPECT_TRUE(reader.Bytes(0).empty());
    EXPECT_FALSE(reader.Overrun());
}

TEST(ByteReader, GivesZerosPastTheEnd) {
    const std::vector<uint8> bytes = {7};
    ByteReader reader(bytes);
    EXPECT_EQ(reader.U16(), 0);
    EXPECT_TRUE(reader.Overrun());
    EXPECT_EQ(reader.U8(), 0);
    EXPECT_EQ(reader.U32(), 0u);
    EXPECT_EQ(reader.Left(), 0u);
}

TEST(ByteReader, GivesNoBytesWhereThereAreTooFew) {
    const std::vector<uint8> bytes = {1, 2, 3};
    ByteReader reader(bytes);
    EXPECT_TRUE(reader.Bytes(std::numeric_limits<size_t>::max()).empty());
    EXPECT_TRUE(reader.Overrun());
}

TEST(ByteReader, AnEmptyBufferHasNothing) {
    ByteReader reader({});
    EXPECT_EQ(reader.Left(), 0u);
    EXPECT_FALSE(reader.Overrun());
    EXPECT_EQ(reader.U8(), 0);
    EXPECT_TRUE(reader.Overrun());
}

TEST(ByteOrder, WritesTheLow16Bits) {
    uint8 bytes[2] = {};
    WriteLittle16(bytes, 0x12345678);
    EXPECT_EQ(ReadLittle16(bytes), 0x5678);
    WriteLittle16(bytes, -2);
    EXPECT_EQ(bytes[0], 0xfe);
    EXPECT_EQ(bytes[1], 0xff);
}

TEST(ByteOrder, Reads32Bits) {
    const uint8 bytes[4] = {0x01, 0x80, 0xff, 0xff};
    EXPECT_EQ(ReadLittle32(bytes), 0xffff8001u);
}

}  // namespace kirto::test
