#include "base/byte_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "base/byte_reader.h"

namespace kirto::test {

using testing::ElementsAre;

TEST(ByteWriter, PutsTheLowByteFirst) {
    ByteWriter writer;
    writer.U8(1);
    writer.U16(0x1234);
    writer.U32(0x92345678);
    writer.Text("ab");

    EXPECT_THAT(writer.Written(), ElementsAre(1, 0x34, 0x12, 0x78, 0x56, 0x34, 0x92, 'a', 'b'));
}

TEST(ByteWriter, WritesWhatAReaderReads) {
    const std::vector<uint8> some = {7, 8};
    ByteWriter writer;
    writer.S32(std::numeric_limits<int32>::min());
    writer.U64(0x8007060504030201u);
    writer.S64(-2);
    writer.F32(0.25f);
    writer.F64(-1.37);
    writer.Bytes(some);

    ByteReader reader(writer.Written());
    EXPECT_EQ(reader.S32(), std::numeric_limits<int32>::min());
    EXPECT_EQ(reader.U64(), 0x8007060504030201u);
    EXPECT_EQ(reader.S64(), -2);
    EXPECT_EQ(reader.F32(), 0.25f);
    EXPECT_EQ(reader.F64(), -1.37);
    EXPECT_EQ(reader.U16(), 0x0807);
    EXPECT_EQ(reader.Left(), 0u);
    EXPECT_FALSE(reader.Overrun());
}

}  // namespace kirto::test
