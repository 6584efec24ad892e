#include "formats/faithful/lzw_parser.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <random>

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;
using Codes = std::vector<std::pair<uint32, uint32>>;  // with their sizes

// Runs of indices below 2^bits, and stretches of noise between them.
Bytes RandomDrawing(uint32 seed, size_t count, int32 bits) {
    std::mt19937 random(seed);
    Bytes indices;
    while (indices.size() < count) {
        const bool noise = random() % 4 == 0;
        const auto index = static_cast<uint8>(random() % (1U << bits));
        for (size_t left = 1 + random() % 90; left > 0 && indices.size() < count; --left)
            indices.push_back(noise ? static_cast<uint8>(random() % (1U << bits)) : index);
    }
    return indices;
}

// Strings that are looked up step by step, up to a full table.
Codes PlainCodes(const Bytes& indices, int32 bits) {
    std::map<std::pair<uint32, uint32>, uint32> longer;
    uint32 next_free = (1U << bits) + 2;
    uint32 size = static_cast<uint32>(bits) + 1;
    Codes codes;
    for (size_t at = 0; at < indices.size() && next_free < LzwStrings::kMost;) {
        if (!codes.empty()) longer.try_emplace({codes.back().first, indices[at]}, next_free++);
        uint32 code = indices[at++];
        while (at < indices.size() && longer.contains({code, indices[at]}))
            code = longer.at({code, indices[at++]});
        codes.emplace_back(code, size);
        if (next_free < LzwStrings::kMost && next_free >> size != 0) ++size;
    }
    return codes;
}

Codes ParsedCodes(LzwParser& parser) {
    Codes codes;
    while (!parser.AtEnd() && !parser.Full()) {
        const LzwParser::Code code = parser.Take();
        codes.emplace_back(code.code, code.size);
    }
    return codes;
}

}  // namespace

TEST(LzwParser, FindsTheStringsThatStepByStepSearchFinds) {
    const auto parser = std::make_unique<LzwParser>();
    for (uint32 seed = 0; seed < 60; ++seed) {
        const int32 bits = 2 + static_cast<int32>(seed) % 7;
        const Bytes indices = RandomDrawing(seed, 100 + seed * 900, bits);
        parser->Start({indices, {}, 0, bits}, 0, 0);
        ASSERT_EQ(ParsedCodes(*parser), PlainCodes(indices, bits)) << seed;
    }
}

TEST(LzwParser, AFlatImageIsRunsThatGrowByAPixel) {
    const auto parser = std::make_unique<LzwParser>();
    const Bytes flat(5050, 1);
    parser->Start({flat, {}, 0, 2}, 0, 0);
    EXPECT_EQ(ParsedCodes(*parser).size(), 100u);
    EXPECT_TRUE(parser->AtEnd());
}

TEST(LzwParser, StartsAnywhereWithNothingButSingleIndices) {
    const auto parser = std::make_unique<LzwParser>();
    const Bytes indices = RandomDrawing(3, 9000, 5);
    parser->Start({indices, {}, 0, 5}, 0, 0);
    ParsedCodes(*parser);
    parser->Start({indices, {}, 0, 5}, 0, 4000);
    EXPECT_EQ(parser->At(), 4000u);
    EXPECT_EQ(parser->Bits(), 0u);
    EXPECT_EQ(ParsedCodes(*parser), PlainCodes(Bytes(indices.begin() + 4000, indices.end()), 5));
}

TEST(LzwParser, CountsTheBitsOfItsCodes) {
    const auto parser = std::make_unique<LzwParser>();
    const Bytes indices = RandomDrawing(5, 3000, 4);
    parser->Start({indices, {}, 0, 4}, 0, 0);
    uint64 bits = 0;
    for (const auto& [code, size] : ParsedCodes(*parser))
        bits += size;
    EXPECT_EQ(parser->Bits(), bits);
}

}  // namespace kirto::test
