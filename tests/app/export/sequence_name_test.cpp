#include "app/export/sequence_name.h"

#include <gtest/gtest.h>

namespace kirto::test {

TEST(SequenceFileName, PutsTheNumberBeforeTheFirstDot) {
    EXPECT_EQ(SequenceFileName("movie.tiff", 2), "movie0002.tiff");
    EXPECT_EQ(SequenceFileName("a.b.png", 0), "a0000.b.png");
    EXPECT_EQ(SequenceFileName("movie", 12345), "movie12345");
    EXPECT_EQ(SequenceFileName(".png", 7), "0007.png");
}

}  // namespace kirto::test
