#include "kit/message.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "support/test_support.h"

namespace kirto::test {

namespace {

// A type that messages know nothing of.
constexpr type_code kOtherType = FourCharCode("RAWT");

// One field of every type, some with several values.
BMessage MessageOfAllTypes() {
    BMessage inner(FourCharCode("innr"));
    inner.AddString("name", "inner");
    BMessage message(FourCharCode("test"));
    message.AddInt32("int32", std::numeric_limits<int32>::min());
    message.AddInt32("int32", 7);
    message.AddInt64("int64", std::numeric_limits<int64>::max());
    message.AddBool("bool", true);
    message.AddFloat("float", -0.5F);
    message.AddDouble("double", 1e300);
    message.AddString("string", "Gr\u00fc\u00dfe");
    message.AddString("string", "");
    message.AddPoint("point", {1.5F, -2});
    message.AddRect("rect", {1, 2, 3, 4});
    message.AddRef("ref", entry_ref("/home/ann/walk.gif"));
    message.AddMessage("message", inner);
    message.AddPointer("pointer", &message);
    message.AddData("raw", kOtherType, "\0\1\2", 3);
    return message;
}

// A message with so many messages nested in it.
BMessage Nested(int depth) {
    BMessage message(static_cast<uint32>(depth));
    for (int i = 0; i < depth; ++i) {
        BMessage outer;
        outer.AddMessage("m", message);
        message = outer;
    }
    return message;
}

void PutLittle32(std::vector<uint8>* bytes, uint32 value) {
    for (int shift = 0; shift < 32; shift += 8)
        bytes->push_back(static_cast<uint8>(value >> shift));
}

void PutText(std::vector<uint8>* bytes, std::string_view text) {
    bytes->insert(bytes->end(), text.begin(), text.end());
}

// "KMSG", what 'test' and the number of fields.
std::vector<uint8> Header(uint32 fields) {
    std::vector<uint8> bytes;
    PutText(&bytes, "KMSG");
    PutLittle32(&bytes, FourCharCode("test"));
    PutLittle32(&bytes, fields);
    return bytes;
}

// A field "f" of one value.
void PutField(std::vector<uint8>* bytes, type_code type, std::string_view value) {
    PutLittle32(bytes, type);
    PutLittle32(bytes, 1);
    PutLittle32(bytes, 1);
    PutText(bytes, "f");
    PutLittle32(bytes, static_cast<uint32>(value.size()));
    PutText(bytes, value);
}

std::vector<uint8> WithField(type_code type, std::string_view value) {
    std::vector<uint8> bytes = Header(1);
    PutField(&bytes, type, value);
    return bytes;
}

status_t Unflatten(const std::vector<uint8>& bytes) {
    BMessage message;
    return message.Unflatten(bytes.data(), bytes.size());
}

}  // namespace

TEST(BMessage, IsEmptyWhenMade) {
    EXPECT_EQ(BMessage().what, 0u);
    EXPECT_TRUE(BMessage(FourCharCode("aofp")).IsEmpty());
    EXPECT_EQ(BMessage(FourCharCode("aofp")).what, FourCharCode("aofp"));
}

TEST(BMessage, FindsWholeNumbersAndFlags) {
    const BMessage message = MessageOfAllTypes();
    int32 number = 0;
    EXPECT_EQ(message.FindInt32("int32", &number), B_OK);
    EXPECT_EQ(number, std::numeric_limits<int32>::min());
    EXPECT_EQ(message.FindInt32("int32", &number, 1), B_OK);
    EXPECT_EQ(number, 7);
    int64 large = 0;
    EXPECT_EQ(message.FindInt64("int64", &large), B_OK);
    EXPECT_EQ(large, std::numeric_limits<int64>::max());
    bool flag = false;
    EXPECT_EQ(message.FindBool("bool", &flag), B_OK);
    EXPECT_TRUE(flag);
}

TEST(BMessage, FindsFractions) {
    const BMessage message = MessageOfAllTypes();
    float single = 0;
    EXPECT_EQ(message.FindFloat("float", &single), B_OK);
    EXPECT_EQ(single, -0.5F);
    double large = 0;
    EXPECT_EQ(message.FindDouble("double", &large), B_OK);
    EXPECT_EQ(large, 1e300);
}

TEST(BMessage, FindsTexts) {
    const BMessage message = MessageOfAllTypes();
    std::string text;
    EXPECT_EQ(message.FindString("string", &text), B_OK);
    EXPECT_EQ(text, "Gr\u00fc\u00dfe");
    EXPECT_EQ(message.FindString("string", &text, 1), B_OK);
    EXPECT_EQ(text, "");
}

TEST(BMessage, FindsPointsAndRectangles) {
    const BMessage message = MessageOfAllTypes();
    BPoint point;
    EXPECT_EQ(message.FindPoint("point", &point), B_OK);
    EXPECT_EQ(point, BPoint(1.5F, -2));
    BRect rect;
    EXPECT_EQ(message.FindRect("rect", &rect), B_OK);
    EXPECT_EQ(rect, BRect(1, 2, 3, 4));
}

TEST(BMessage, FindsRefsMessagesPointersAndBytes) {
    const BMessage message = MessageOfAllTypes();
    entry_ref ref;
    EXPECT_EQ(message.FindRef("ref", &ref), B_OK);
    EXPECT_EQ(ref, entry_ref("/home/ann/walk.gif"));
    BMessage inner;
    EXPECT_EQ(message.FindMessage("message", &inner), B_OK);
    EXPECT_EQ(inner.what, FourCharCode("innr"));
    EXPECT_TRUE(inner.HasField("name"));
    std::string_view bytes;
    EXPECT_EQ(message.FindData("raw", kOtherType, 0, &bytes), B_OK);
    EXPECT_EQ(bytes, std::string_view("\0\1\2", 3));
}

TEST(BMessage, APointerComesBackAsItWas) {
    int target = 0;
    BMessage message;
    message.AddPointer("p", &target);
    message.AddPointer("p", nullptr);
    void* found = nullptr;
    EXPECT_EQ(message.FindPointer("p", &found), B_OK);
    EXPECT_EQ(found, &target);
    EXPECT_EQ(message.FindPointer("p", &found, 1), B_OK);
    EXPECT_EQ(found, nullptr);
}

TEST(BMessage, LeavesTheResultAloneWhereThereIsNoSuchField) {
    const BMessage message = MessageOfAllTypes();
    int32 number = 42;
    EXPECT_EQ(message.FindInt32("absent", &number), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindInt32("string", &number), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindInt32("int32", &number, 2), B_BAD_INDEX);
    EXPECT_EQ(message.FindInt32("int32", &number, -1), B_BAD_INDEX);
    EXPECT_EQ(number, 42);
    BMessage inner(7);
    EXPECT_EQ(message.FindMessage("absent", &inner), B_NAME_NOT_FOUND);
    EXPECT_EQ(inner.what, 7u);
}

TEST(BMessage, EveryFindReportsAnAbsentField) {
    const BMessage message;
    int64 large = 0;
    bool flag = false;
    float single = 0;
    double fraction = 0;
    std::string text;
    BPoint point;
    BRect rect;
    entry_ref ref;
    void* pointer = nullptr;
    EXPECT_EQ(message.FindInt64("f", &large), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindBool("f", &flag), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindFloat("f", &single), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindDouble("f", &fraction), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindString("f", &text), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindPoint("f", &point), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindRect("f", &rect), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindRef("f", &ref), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.FindPointer("f", &pointer), B_NAME_NOT_FOUND);
}

TEST(BMessage, AMessageFoundMayTakeItsOwnersPlace) {
    BMessage message = Nested(2);
    EXPECT_EQ(message.FindMessage("m", &message), B_OK);
    EXPECT_EQ(message.FindMessage("m", &message), B_OK);
    EXPECT_TRUE(message.IsEmpty());
    EXPECT_EQ(message.what, 2u);
}

TEST(BMessage, AFieldHoldsOneType) {
    BMessage message;
    EXPECT_EQ(message.AddInt32("f", 1), B_OK);
    EXPECT_EQ(message.AddString("f", "1"), B_BAD_TYPE);
    EXPECT_EQ(message.CountItems("f"), 1);
}

TEST(BMessage, TellsAboutItsFieldsInTheOrderOfTheirFirstAdd) {
    BMessage message;
    message.AddInt32("b", 1);
    message.AddString("a", "");
    message.AddInt32("b", 2);
    EXPECT_EQ(message.CountNames(), 2);
    EXPECT_EQ(message.NameAt(0), "b");
    EXPECT_EQ(message.NameAt(1), "a");
    EXPECT_EQ(message.NameAt(2), "");
    EXPECT_EQ(message.NameAt(-1), "");
    EXPECT_EQ(message.CountItems("b"), 2);
    EXPECT_EQ(message.CountItems("absent"), 0);
    EXPECT_FALSE(message.HasField("absent"));
    type_code type = 0;
    int32 count = 0;
    EXPECT_EQ(message.GetInfo("b", &type, &count), B_OK);
    EXPECT_EQ(type, B_INT32_TYPE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(message.GetInfo("absent", &type, &count), B_NAME_NOT_FOUND);
}

TEST(BMessage, ReplacesOneValue) {
    BMessage message = MessageOfAllTypes();
    message.AddMessage("message", BMessage(4));
    EXPECT_EQ(message.ReplaceRect("rect", {5, 6, 7, 8}), B_OK);
    EXPECT_EQ(message.ReplaceMessage("message", BMessage(3), 1), B_OK);
    BRect rect;
    message.FindRect("rect", &rect);
    EXPECT_EQ(rect, BRect(5, 6, 7, 8));
    BMessage inner;
    message.FindMessage("message", &inner, 1);
    EXPECT_EQ(inner, BMessage(3));
    message.FindMessage("message", &inner);
    EXPECT_NE(inner, BMessage(3));
}

TEST(BMessage, ReplacesNothingThatIsNotThere) {
    BMessage message;
    message.AddRect("f", {1, 2, 3, 4});
    const BMessage before = message;
    EXPECT_EQ(message.ReplaceRect("absent", {}), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.ReplaceMessage("f", BMessage()), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.ReplaceRect("f", {}, 1), B_BAD_INDEX);
    EXPECT_EQ(message, before);
}

TEST(BMessage, RemovesFields) {
    BMessage message;
    message.AddInt32("a", 1);
    message.AddInt32("b", 2);
    message.AddInt32("c", 3);
    EXPECT_EQ(message.RemoveName("b"), B_OK);
    EXPECT_EQ(message.RemoveName("b"), B_NAME_NOT_FOUND);
    EXPECT_EQ(message.RemoveName(message.NameAt(0)), B_OK);
    EXPECT_EQ(message.CountNames(), 1);
    EXPECT_EQ(message.NameAt(0), "c");
    EXPECT_EQ(message.RemoveName("c"), B_OK);
    EXPECT_TRUE(message.IsEmpty());
}

TEST(BMessage, ComparesCodeFieldsAndValues) {
    BMessage a(1);
    BMessage b(1);
    EXPECT_EQ(a, b);
    a.AddInt32("f", 1);
    EXPECT_NE(a, b);
    b.AddInt32("f", 1);
    EXPECT_EQ(a, b);
    b.AddInt32("f", 1);
    EXPECT_NE(a, b);
    EXPECT_NE(BMessage(1), BMessage(2));
}

TEST(BMessage, ComparesFractionsBitByBit) {
    BMessage a;
    BMessage b;
    a.AddFloat("f", std::numeric_limits<float>::quiet_NaN());
    b.AddFloat("f", std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(a, b);
}

TEST(BMessage, RefusesBytesThatTheTypeCannotHave) {
    BMessage message;
    EXPECT_EQ(message.AddData("f", B_INT32_TYPE, "abc", 3), B_BAD_VALUE);
    EXPECT_EQ(message.AddData("f", B_RECT_TYPE, "abcdefgh", 8), B_BAD_VALUE);
    EXPECT_EQ(message.AddData("f", B_MESSAGE_TYPE, "KMSG", 4), B_BAD_VALUE);
    EXPECT_EQ(message.AddData("f", kOtherType, nullptr, 1), B_BAD_VALUE);
    EXPECT_EQ(message.AddRef("f", entry_ref(std::string("a\0b", 3))), B_BAD_VALUE);
    EXPECT_TRUE(message.IsEmpty());
}

TEST(BMessage, RefusesValuesWhoseLengthPasses32Bits) {
    BMessage message;
    EXPECT_EQ(message.AddData("f", kOtherType, "x", size_t{1} << 32), B_BAD_VALUE);
    EXPECT_TRUE(message.IsEmpty());
}

TEST(BMessage, TakesValuesWithoutBytes) {
    BMessage message;
    EXPECT_EQ(message.AddData("f", kOtherType, nullptr, 0), B_OK);
    EXPECT_EQ(message.AddString("s", {}), B_OK);
    EXPECT_EQ(message.AddInt32("", 1), B_OK);
    BMessage copy;
    const std::vector<uint8> bytes = message.Flatten();
    EXPECT_EQ(copy.Unflatten(bytes.data(), bytes.size()), B_OK);
    EXPECT_EQ(copy, message);
}

TEST(BMessage, NestsNoDeeperThan64) {
    BMessage message;
    EXPECT_EQ(message.AddMessage("m", Nested(63)), B_OK);
    EXPECT_EQ(message.AddMessage("m", Nested(64)), B_BAD_VALUE);
    EXPECT_EQ(message.ReplaceMessage("m", Nested(64)), B_BAD_VALUE);
    EXPECT_EQ(message.CountItems("m"), 1);
}

TEST(BMessage, ComesBackFromItsFlattenedForm) {
    const BMessage message = MessageOfAllTypes();
    const std::vector<uint8> bytes = message.Flatten();
    BMessage copy(1);
    copy.AddInt32("old", 1);
    EXPECT_EQ(copy.Unflatten(bytes.data(), bytes.size()), B_OK);
    EXPECT_EQ(copy, message);
    EXPECT_EQ(copy.Flatten(), bytes);
}

TEST(BMessage, FlattensNumbersLittleEndian) {
    BMessage message(FourCharCode("test"));
    message.AddInt32("f", 0x01020304);
    const std::vector<uint8> expected = {
        'K', 'M', 'S', 'G', 't', 's', 'e', 't', 1, 0, 0, 0,       // header
        'G', 'N', 'O', 'L', 1,   0,   0,   0,   1, 0, 0, 0, 'f',  // field
        4,   0,   0,   0,   4,   3,   2,   1};                    // value
    EXPECT_EQ(message.Flatten(), expected);
}

TEST(BMessage, UnflattensNoPartOfItself) {
    const std::vector<uint8> bytes = MessageOfAllTypes().Flatten();
    for (size_t size = 0; size < bytes.size(); ++size) {
        const std::vector<uint8> part(bytes.begin(),
                                      bytes.begin() + static_cast<std::ptrdiff_t>(size));
        BMessage message(1);
        message.AddInt32("old", 1);
        EXPECT_EQ(message.Unflatten(part.data(), part.size()), B_BAD_DATA) << size;
        EXPECT_EQ(message, BMessage()) << size;
    }
}

TEST(BMessage, UnflattensNothingWithBytesAfterItsEnd) {
    std::vector<uint8> bytes = MessageOfAllTypes().Flatten();
    bytes.push_back(0);
    EXPECT_EQ(Unflatten(bytes), B_BAD_DATA);
}

TEST(BMessage, UnflattensNothingWithAnotherMark) {
    std::vector<uint8> bytes = BMessage(1).Flatten();
    EXPECT_EQ(Unflatten(bytes), B_OK);
    bytes[3] = 'g';
    EXPECT_EQ(Unflatten(bytes), B_BAD_DATA);
}

TEST(BMessage, UnflattensNoFieldTwice) {
    std::vector<uint8> bytes = Header(2);
    PutField(&bytes, B_STRING_TYPE, "a");
    PutField(&bytes, B_STRING_TYPE, "b");
    EXPECT_EQ(Unflatten(bytes), B_BAD_DATA);
}

TEST(BMessage, UnflattensNoFieldWithoutValues) {
    std::vector<uint8> bytes = Header(1);
    PutLittle32(&bytes, B_STRING_TYPE);
    PutLittle32(&bytes, 1);
    PutLittle32(&bytes, 0);
    PutText(&bytes, "f");
    EXPECT_EQ(Unflatten(bytes), B_BAD_DATA);
}

TEST(BMessage, UnflattensNoValueOfAnImpossibleSize) {
    EXPECT_EQ(Unflatten(WithField(B_INT32_TYPE, "abcd")), B_OK);
    for (const type_code type : {B_INT32_TYPE, B_INT64_TYPE, B_BOOL_TYPE, B_FLOAT_TYPE,
                                 B_DOUBLE_TYPE, B_RECT_TYPE, B_POINT_TYPE, B_POINTER_TYPE}) {
        EXPECT_EQ(Unflatten(WithField(type, "abc")), B_BAD_DATA);
        EXPECT_EQ(Unflatten(WithField(type, "")), B_BAD_DATA);
    }
}

TEST(BMessage, UnflattensNoPathWithAZeroByte) {
    EXPECT_EQ(Unflatten(WithField(B_REF_TYPE, "/a/b")), B_OK);
    EXPECT_EQ(Unflatten(WithField(B_REF_TYPE, std::string_view("/a\0b", 4))), B_BAD_DATA);
}

TEST(BMessage, UnflattensTypesItDoesNotKnow) {
    EXPECT_EQ(Unflatten(WithField(FourCharCode("????"), "anything")), B_OK);
}

TEST(BMessage, AnyByteButZeroIsATrueFlag) {
    BMessage message;
    const std::vector<uint8> bytes = WithField(B_BOOL_TYPE, "\x02");
    ASSERT_EQ(message.Unflatten(bytes.data(), bytes.size()), B_OK);
    bool flag = false;
    message.FindBool("f", &flag);
    EXPECT_TRUE(flag);
}

TEST(BMessage, CountsAndLengthsPastTheBytesAreRefused) {
    EXPECT_EQ(Unflatten(Header(0xffffffff)), B_BAD_DATA);
    std::vector<uint8> long_name = Header(1);
    PutLittle32(&long_name, kOtherType);
    PutLittle32(&long_name, 0xffffffff);
    PutLittle32(&long_name, 1);
    EXPECT_EQ(Unflatten(long_name), B_BAD_DATA);
    std::vector<uint8> many_values = Header(1);
    PutLittle32(&many_values, kOtherType);
    PutLittle32(&many_values, 0);
    PutLittle32(&many_values, 0xffffffff);
    EXPECT_EQ(Unflatten(many_values), B_BAD_DATA);
    std::vector<uint8> long_value = Header(1);
    PutLittle32(&long_value, kOtherType);
    PutLittle32(&long_value, 0);
    PutLittle32(&long_value, 1);
    PutLittle32(&long_value, 0xffffffff);
    EXPECT_EQ(Unflatten(long_value), B_BAD_DATA);
}

TEST(BMessage, DamageInsideANestedMessageIsDamage) {
    const std::vector<uint8> inner = WithField(B_INT32_TYPE, "abc");
    const std::string text(inner.begin(), inner.end());
    EXPECT_EQ(Unflatten(WithField(B_MESSAGE_TYPE, text)), B_BAD_DATA);
}

TEST(BMessage, UnflattensNestingUpTo64) {
    const BMessage message = Nested(64);
    std::vector<uint8> bytes = message.Flatten();
    BMessage copy;
    EXPECT_EQ(copy.Unflatten(bytes.data(), bytes.size()), B_OK);
    EXPECT_EQ(copy, message);
    const std::string text(bytes.begin(), bytes.end());
    EXPECT_EQ(Unflatten(WithField(B_MESSAGE_TYPE, text)), B_BAD_DATA);
}

TEST(BMessage, ManyFieldsUnflattenWithoutDelay) {
    // 50000 distinct names: comparing each with each would take minutes under the sanitizers.
    std::vector<uint8> bytes = Header(50000);
    for (uint32 i = 0; i < 50000; ++i) {
        PutLittle32(&bytes, kOtherType);
        PutLittle32(&bytes, 4);
        PutLittle32(&bytes, 1);
        PutLittle32(&bytes, i);
        PutLittle32(&bytes, 0);
    }
    BMessage message;
    EXPECT_EQ(message.Unflatten(bytes.data(), bytes.size()), B_OK);
    EXPECT_EQ(message.CountNames(), 50000);
}

TEST(BMessage, SurvivesAnyDamagedByte) {
    const std::vector<uint8> sound = MessageOfAllTypes().Flatten();
    for (size_t i = 0; i < sound.size(); ++i) {
        for (const uint8 damage : std::initializer_list<uint8>{0x01, 0x80, 0xff}) {
            std::vector<uint8> bytes = sound;
            bytes[i] ^= damage;
            BMessage message;
            const status_t status = message.Unflatten(bytes.data(), bytes.size());
            EXPECT_EQ(status == B_OK ? message.Flatten() : bytes, bytes);
        }
    }
}

}  // namespace kirto::test
