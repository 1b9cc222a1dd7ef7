// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "audio/samples.h"

namespace velm::test {
namespace {

TEST(Sample, CapacityAndLengthKeepWhatTheyShould) {
    const Sample s({1, 2, 3});
    SAMPLE_setLength(s, 1);
    SAMPLE_setLength(s, 3);
    EXPECT_EQ(values(s), (List{1, 2, 3})) << "shortening forgets nothing";
    SAMPLE_setLength(s, 1);
    SAMPLE_setLength(s, 33);
    EXPECT_EQ(s->capacity, 33);
    EXPECT_EQ(s->data[0], 1);
    EXPECT_EQ(s->data[2], 0) << "only the values in use move to a new array";
    SAMPLE_setCapacity(s, 2);
    EXPECT_EQ(values(s), (List{1, 0}));
    SAMPLE_append(s, 9);
    EXPECT_EQ(s->capacity, 4);
    SAMPLE_setCapacity(s, 0);
    EXPECT_EQ(s->data, nullptr);
    SAMPLE_append(s, 1);
    EXPECT_EQ(s->capacity, 0) << "a sample without data takes none";
    SAMPLE_setLength(s, 2);
    EXPECT_EQ(values(s), (List{0, 0}));
}

TEST(Sample, EditsMoveTheTail) {
    const Sample s({1, 2, 3});
    const Sample other({7, 8});
    SAMPLE_insert(s, other, 1);
    EXPECT_EQ(values(s), (List{1, 7, 8, 2, 3}));
    SAMPLE_insert(s, s, 2);
    EXPECT_EQ(values(s), (List{1, 7, 1, 7, 8, 2, 3, 8, 2, 3}));
    SAMPLE_insertValue(s, 5, 10);
    SAMPLE_removeAt(s, 0);
    EXPECT_EQ(values(s), (List{7, 1, 7, 8, 2, 3, 8, 2, 3, 5}));
    EXPECT_EQ(SAMPLE_find(s, 8, 3), 3);
    EXPECT_EQ(SAMPLE_find(s, 8, 4), 6);
    EXPECT_EQ(SAMPLE_find(s, 8, 7), -1);
    SAMPLE_copy(s, s, 4, 0, 2);
    EXPECT_EQ(values(s), (List{7, 1, 7, 1, 7, 8, 8, 2, 3, 5}));
    SAMPLE_resize(s, 4);
    EXPECT_EQ(values(s), (List{7, 7, 8, 2}));
    using Made = Owned<SAMPLE_delete>;
    const std::int8_t bytes[] = {-128, 127};
    EXPECT_EQ(values(Made(SAMPLE_fromBytes(bytes, 2))), (List{-128, 127}));
    EXPECT_EQ(values(Made(SAMPLE_slice(s, -3, 2))), (List{7, 7}));
    EXPECT_EQ(Made(SAMPLE_slice(s, 9, 1))->length, 0);
    const Made clone(SAMPLE_clone(s));
    EXPECT_EQ(SAMPLE_equals(clone, s), 1);
    ++clone->data[3];
    EXPECT_EQ(SAMPLE_equals(clone, s), 0);
}

TEST(Sample, RotatesRound) {
    const Sample s({1, 2, 3, 4, 5});
    SAMPLE_rotate(s, 1);
    EXPECT_EQ(values(s), (List{5, 1, 2, 3, 4}));
    SAMPLE_rotate(s, 5);
    SAMPLE_rotate(s, 12);
    EXPECT_EQ(values(s), (List{3, 4, 5, 1, 2}));
    SAMPLE_rotateLeft(s, 7);
    EXPECT_EQ(values(s), (List{5, 1, 2, 3, 4}));
    SAMPLE_rotate(s, -1);
    EXPECT_EQ(values(s), (List{1, 2, 3, 4, 5}));
}

TEST(Sample, ShiftsToTheLeftAndByAllBitsAndClears) {
    const Sample s({INT32_MIN, 458752, 12, -1});
    SAMPLE_shiftRight(s, 32);
    EXPECT_EQ(values(s), (List{INT32_MIN, 458752, 12, -1})) << "as processors do";
    SAMPLE_shiftLeft(s, 2);
    EXPECT_EQ(values(s), (List{0, 1835008, 48, -4}));
    SAMPLE_clear(s);
    EXPECT_EQ(values(s), (List{0, 0, 0, 0}));
}

/// Expects the operation to store rule(a[i], b[i]), modulo 2^32, as far as both samples reach, and no more.
template <typename Operation, typename Rule>
void compareArithmetic(const List& a, const List& b, Operation operation, Rule rule) {
    const Sample actual(a);
    const Sample other(b);
    List expected = a;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        const std::int64_t result = rule(std::int64_t{a[i]}, std::int64_t{b[i]});
        expected[i] = static_cast<std::int32_t>(static_cast<std::uint32_t>(result));
    }
    operation(actual, other);
    ASSERT_EQ(values(actual), expected);
}

TEST(Sample, ArithmeticEqualsThePlainRule) {
    for (std::uint32_t seed = 1; seed <= 1000 && !HasFatalFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Images engine(seed);
        // Every other round, all values but one or none are such as a sound has, at any volume: what is
        // computed in blocks takes each on its own way.
        const bool isQuiet = seed % 2 == 0;
        const auto draw = [&engine, isQuiet] {
            List values = randomValues(engine, engine.number(0, isQuiet ? 300 : 70));
            for (std::size_t i = isQuiet ? 0 : values.size(); i < values.size(); ++i) {
                values[i] = engine.number(0, 400) == 0 ? values[i] : values[i] % 0x8000;
            }
            return values;
        };
        const List a = draw();
        const List b = draw();
        const std::int32_t n = isQuiet ? engine.number(-1000, 1000) : randomValues(engine, 1)[0];
        const std::int32_t d = engine.number(0, 1) == 0 ? engine.number(1, 9) : engine.number(INT32_MIN, -1);
        const auto low = [](std::int64_t product) {
            return std::int64_t{static_cast<std::int32_t>(static_cast<std::uint32_t>(product))};
        };
        using Value = std::int64_t;
        compareArithmetic(a, b, SAMPLE_add, [](Value x, Value y) { return x + y; });
        compareArithmetic(a, b, SAMPLE_multiply, [](Value x, Value y) { return x * y; });
        compareArithmetic(
            a, b, [=](SAMPLE* to, SAMPLE* from) { SAMPLE_mixScaled(to, from, n, d); },
            [=](Value x, Value y) { return x + low(y * n) / d; });
        compareArithmetic(
            a, b, [=](SAMPLE* to, SAMPLE* from) { SAMPLE_mixFixed(to, from, n); },
            [=](Value x, Value y) { return x + (low(y * n) >> 16); });
        compareArithmetic(
            a, a, [=](SAMPLE* to, SAMPLE*) { SAMPLE_divide(to, d); }, [=](Value x, Value) { return x / d; });
        compareArithmetic(
            a, a, [=](SAMPLE* to, SAMPLE*) { SAMPLE_shiftRight(to, n & 31); },
            [=](Value x, Value) { return x >> (n & 31); });
    }
}

TEST(Sample, NormalizesAndRescalesInSixtyFourBits) {
    const Sample s({-16000, 8000, 1, -1});
    SAMPLE_normalize(s, 32000);
    EXPECT_EQ(values(s), (List{-32000, 16000, 2, -2}));
    SAMPLE_scale(s, -1);
    SAMPLE_normalize(s, 9999);
    EXPECT_EQ(values(s), (List{9998, -5000, -1, 0})) << "the factor is cut, the product rounds down";
    const Sample wide({INT32_MIN, INT32_MAX, 0});
    SAMPLE_normalize(wide, INT32_MIN);
    EXPECT_EQ(values(wide), (List{INT32_MIN, -INT32_MAX, 0})) << "2^31 wraps";
    const Sample range({INT32_MIN, INT32_MAX, 0});
    SAMPLE_rescale(range, INT32_MAX, INT32_MIN);
    EXPECT_EQ(values(range), (List{INT32_MAX, INT32_MIN, -1}));
    SAMPLE_rescale(range, 0, 10);
    EXPECT_EQ(values(range), (List{10, 0, 4}));
}

TEST(Sample, SAMPLE_rampStopsShortAndSAMPLE_rampKeepsValuesInPlace) {
    const Sample s({9, 9, 9, 9, 9, 9});
    SAMPLE_ramp(s, 5, 100, 2, 0);
    EXPECT_EQ(values(s), (List{9, 9, 100, 83, 50, 16}));
    SAMPLE_ramp(s, 4, -1, 0, 1);
    EXPECT_EQ(values(s), (List{-1, 0, 0, 1, 1, 16}));
    SAMPLE_ramp(s, 0, 21, 1, 22), SAMPLE_ramp(s, 2, 5, 3, 9);
    EXPECT_EQ(values(s), (List{21, 21, 5, 7, 1, 16}));
    SAMPLE_setLength(s, 11025);
    SAMPLE_ramp(s, 0, 32767, 11024, 0);
    EXPECT_EQ(s->data[11024], 1);
}

TEST(Sample, RampsAreTheFirstPixelsOfALinesColumns) {
    Images engine(2);
    const Sample s;
    const Picture line(IMG_newSized(61, 101));
    for (int round = 0; round < 3000; ++round) {
        const std::int32_t width = engine.number(2, 60);
        const std::int32_t from = engine.number(0, 100);
        const std::int32_t to = engine.number(0, 100);
        SAMPLE_setLength(s, width + 1);
        SAMPLE_ramp(s, 0, from, width, to);
        IMG_fill(line, 0);
        IMG_drawLine(line, 0, from, width, to, 1);
        for (std::int32_t x = 0, y = from; x <= width; ++x) {
            for (; y != to && IMG_getPixel(line, x, y) == 0; y += to > from ? 1 : -1) {
            }
            ASSERT_EQ(s->data[x], y) << from << " to " << to << " over " << width << ", index " << x;
        }
    }
}

TEST(Sample, TextAndFilesReadBack) {
    const Sample s({-5, INT32_MIN, 7});
    char* text = SAMPLE_toText(s);
    EXPECT_STREQ(text, "SAMPLE { 3\n-5\n-2147483648\n7\n}\n");
    SAMPLE* copy = SAMPLE_fromText((std::string("a picture? SAMPLE! ") + text).c_str());
    EXPECT_EQ(values(copy), values(s));
    delete[] text;
    SAMPLE_delete(&copy);
    const Sample empty;
    text = SAMPLE_toText(empty);
    EXPECT_STREQ(text, "SAMPLE { 0 }\n");
    delete[] text;
    for (const char* malformed : {"", "SAMPLE", "SAMPLE { 2\n1\n}", "SAMPLE { -1\n}",
                                  "SAMPLE { 999999999\n1\n", "SAMPLE { 1\n2147483648\n}", "3\n1\n2\n3\n"}) {
        EXPECT_EQ(SAMPLE_fromText(malformed), nullptr) << malformed;
    }
    std::FILE* file = std::tmpfile();
    const Sample raw({0x01020304, -2});
    EXPECT_EQ(SAMPLE_writeRaw(raw, file, 3, 'm'), 1);
    EXPECT_EQ(SAMPLE_writeRaw(raw, file, 4, 'l'), 1);
    std::rewind(file);
    const Sample read;
    EXPECT_EQ(SAMPLE_readRaw(read, file, 3, 'm', 2), 2);
    EXPECT_EQ(SAMPLE_readRaw(read, file, 2, 'l', 3), 3);
    EXPECT_EQ(SAMPLE_readRaw(read, file, 4, 'l', 9), 0) << "half a value is none";
    EXPECT_EQ(values(read), (List{0x020304, 0xFFFFFE, 0x0304, 0x0102, 0xFFFE}));
    std::fclose(file);
}

TEST(Sample, FailuresAreReportedAndChangeNothing) {
    const Sample s({4, 4});
    const Sample empty;
    expectReports(SAMPLE_verbose, 24, "SAMPLE error", [&] {
        EXPECT_EQ(SAMPLE_get(s, 2), 0);
        SAMPLE_set(s, 2, 1), SAMPLE_set(s, -1, 1), SAMPLE_divide(s, 0), SAMPLE_mixScaled(s, s, 1, 0);
        SAMPLE_shiftRight(s, 33), SAMPLE_shiftLeft(s, -1), SAMPLE_rescale(s, 0, 10);
        SAMPLE_normalize(empty, 10), SAMPLE_rotate(empty, 1), SAMPLE_resize(empty, 5);
        EXPECT_EQ(SAMPLE_min(empty) + SAMPLE_max(empty), 0);
        SAMPLE_ramp(s, -1, 0, 1, 5), SAMPLE_ramp(s, 0, 0, 2, 5), SAMPLE_copy(s, s, 2, 1, 0);
        SAMPLE_copy(s, s, -1, 1, 1), SAMPLE_insertValue(s, 1, 3), SAMPLE_removeAt(s, 2);
        SAMPLE_setLength(s, -1), SAMPLE_add(s, nullptr), SAMPLE_delete(nullptr);
        EXPECT_EQ(SAMPLE_writeRaw(s, nullptr, 2, 'l'), 0);
        const FailingAllocation failure(1);
        SAMPLE_setLength(s, 33);
    });
    EXPECT_EQ(values(s), (List{4, 4}));
    expectReports(SAMPLE_verbose, 2, "SAMPLE error", [&] {
        SAMPLE_ramp(s, 1, 6, 1, 8); // no width to rise over
        EXPECT_EQ(values(s), (List{4, 6}));
        SAMPLE_clear(s), SAMPLE_normalize(s, 10); // silence stays
    });
    expectFailure(1, SAMPLE_new), expectFailure(2, SAMPLE_new);
}

} // namespace
} // namespace velm::test
