// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What SAM reads: its own format, RIFF/WAVE, and raw values. A reader fills a new sample and changes the
// record only when it succeeds, so that the next one finds it as the caller left it.
#include "audio/sam.h"
#include "audio/sample.h"
#include "foundation/report.h"
#include "foundation/text.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t bitsPerByte = 8;
constexpr std::int32_t widestValue = 32; // bits
constexpr std::int32_t mostValues = std::numeric_limits<std::int32_t>::max();

bool isOneOf(int character, std::string_view letters) {
    return letters.find(static_cast<char>(character)) != std::string_view::npos;
}

void close(SAM* sam) {
    if (sam->file != nullptr) {
        std::fclose(sam->file);
        sam->file = nullptr;
    }
}

/// Opens the file of that name, in place of one that is open; false (reported) when that cannot be.
bool open(SAM* sam, const char* mode) {
    if (refused(sam == nullptr || sam->path == nullptr, SAM_error)) {
        return false;
    }
    close(sam);
    sam->file = std::fopen(sam->path, mode);
    return !refused(sam->file == nullptr, SAM_error);
}

std::int32_t refuse(SAM* sam, SAMPLE* sample = nullptr) {
    if (sample != nullptr) {
        SAMPLE_delete(&sample);
    }
    close(sam);
    SAM_error();
    return 0;
}

std::int32_t accept(SAM* sam, SAMPLE* sample) {
    close(sam);
    SAM_setSample(sam, sample);
    return 1;
}

/// True when nothing but the end of the file kept the sample from its `count` values.
bool isRead(std::FILE* file, const SAMPLE* sample, std::int32_t count) {
    return sample->length >= count || std::feof(file) != 0;
}

/// Reads a decimal number modulo 2^32 from its first character on, and takes the character after it. What is
/// no digit is 0.
std::int32_t readNumber(std::FILE* file, int character) {
    std::uint32_t number = 0;
    for (; isDigit(character); character = std::fgetc(file)) {
        number = number * 10 + static_cast<std::uint32_t>(character - '0');
    }
    return static_cast<std::int32_t>(number);
}

struct SamHeader {
    bool hasMagic = false;
    char storage = 0; ///< 0 until it is known
    char sign = 0;    ///< 0 until it is known
    enum Number : std::uint8_t { depth, count, channels, numbers };
    std::int32_t number[numbers] = {};
    std::int32_t filled = 0; ///< how many of the numbers are known

    [[nodiscard]] bool isComplete() const {
        return hasMagic && storage != 0 && sign != 0 && filled == numbers;
    }
};

void skipLine(std::FILE* file) {
    for (int character = 0; character != '\n' && character != EOF;) {
        character = std::fgetc(file);
    }
}

/// What one printable character of a header starts. SAM_headerWordsAreNumbers: one expects words; but for the
/// first letters of magic, storage and sign every letter is a number of its own, 0, so the headers that are
/// written here read as no values of no bits. The headers to be read say "SAM b u 8 3 1".
void takeHeaderToken(std::FILE* file, int character, SamHeader& header) {
    if (character == '#') {
        skipLine(file);
    } else if (isOneOf(character, "sS") && !header.hasMagic) {
        const int second = std::fgetc(file);
        const int third = std::fgetc(file);
        header.hasMagic = isOneOf(second, "aA") && isOneOf(third, "mM");
    } else if (isOneOf(character, "abAB") && header.storage == 0) {
        header.storage = static_cast<char>(character);
    } else if (isOneOf(character, "suSU") && header.sign == 0) {
        header.sign = static_cast<char>(character);
    } else {
        const std::int32_t number = readNumber(file, character);
        if (header.filled < SamHeader::numbers) {
            header.number[header.filled++] = number;
        }
    }
}

/// Reads until the header is complete; false when the file ends before.
bool readSamHeader(std::FILE* file, SamHeader& header) {
    constexpr int lastPrintable = 176;
    while (!header.isComplete()) {
        const int character = std::fgetc(file);
        if (character == EOF) {
            return false;
        }
        if (character > ' ' && character <= lastPrintable) {
            takeHeaderToken(file, character, header);
        }
    }
    return true;
}

/// Reads decimal values until there are `count`; false when the file ends before. SAM_textLosesMinus: one
/// expects "-5" to be negative; whatever is no digit separates, so it is 5.
bool readText(std::FILE* file, SAMPLE* sample, std::int32_t count) {
    while (sample->length < count) {
        int character = std::fgetc(file);
        while (character != EOF && !isDigit(character)) {
            character = std::fgetc(file);
        }
        const std::int32_t length = sample->length;
        if (character != EOF) {
            SAMPLE_append(sample, readNumber(file, character));
        }
        if (sample->length == length) {
            return false;
        }
    }
    return true;
}

/// The 44 bytes before the data of the only WAVE files that are accepted.
struct WaveHeader {
    std::uint8_t bytes[44];

    [[nodiscard]] bool hasTag(std::string_view tag, std::size_t offset) const {
        return std::memcmp(bytes + offset, tag.data(), tag.size()) == 0;
    }
    [[nodiscard]] std::int32_t word(std::size_t offset) const {
        return bytes[offset] | bytes[offset + 1] << bitsPerByte;
    }
    [[nodiscard]] bool isPcm() const {
        return hasTag("RIFF", 0) && hasTag("WAVE", 8) && hasTag("fmt", 12) && hasTag("data", 36) &&
               word(20) == 1;
    }
    [[nodiscard]] std::int32_t channels() const { return word(22); }
    [[nodiscard]] std::int32_t depth() const { return word(34); }
    [[nodiscard]] std::int64_t dataSize() const { return word(40) + (std::int64_t{word(42)} << 16); }
};

/// Reads the values of a width that has none: a 0 for every group of bytes that is there.
void readZeros(std::FILE* file, SAMPLE* sample, std::int32_t bytes, std::int32_t count) {
    std::uint8_t group[std::numeric_limits<std::uint16_t>::max() / bitsPerByte];
    while (sample->length < count && std::fread(group, static_cast<std::size_t>(bytes), 1, file) == 1) {
        const std::int32_t length = sample->length;
        SAMPLE_append(sample, 0);
        if (sample->length == length) {
            return;
        }
    }
}

/// Reads the data of a WAVE file. SAM_waveKeepsBytes: one expects 8 bits to be centred about 0, wider values
/// to be scaled down and channels to be mixed; bytes stay 0..255, what is neither 8 nor 16 bits wide becomes
/// 0, and channels alternate.
void readWaveData(std::FILE* file, SAMPLE* sample, std::int32_t depth, std::int32_t count) {
    if (depth == 8) {
        SAMPLE_readRaw(sample, file, 1, 'l', count);
    } else if (depth == 16) {
        SAMPLE_readRaw(sample, file, 2, 'l', count);
        std::transform(sample->data, sample->data + sample->length, sample->data,
                       [](std::int32_t value) { return SAM_signExtend(value, 16); });
    } else {
        readZeros(file, sample, depth / bitsPerByte, count);
    }
}

} // namespace

std::int32_t SAM_readSam(SAM* sam) {
    if ((sam == nullptr || sam->file == nullptr) && !open(sam, "rb")) {
        return 0;
    }
    SamHeader header;
    SAMPLE* sample = nullptr;
    if (!readSamHeader(sam->file, header)) {
        return refuse(sam);
    }
    const bool isText = isOneOf(header.storage, "aA"); // whose width does not matter
    if ((!isText && header.number[SamHeader::depth] > widestValue) || (sample = SAMPLE_new()) == nullptr) {
        return refuse(sam);
    }
    const std::int32_t count = header.number[SamHeader::count];
    if (isText) {
        // SAM_cutTextIsSuccess: one expects 0 when values are missing; they are reported, and 1 is returned.
        if (!readText(sam->file, sample, count)) {
            SAM_error();
        }
    } else {
        // SAM_readsBigEndianUnsigned: one expects the order that is written and the header's sign; the most
        // significant byte comes first, and no sign is extended.
        const std::int32_t bytes = (std::max(header.number[SamHeader::depth], 1) + 7) / bitsPerByte;
        SAMPLE_readRaw(sample, sam->file, bytes, 'm', count);
    }
    if (!isRead(sam->file, sample, count)) {
        return refuse(sam, sample);
    }
    sam->channels = header.number[SamHeader::channels];
    sam->depth = header.number[SamHeader::depth];
    sam->sign = header.sign;
    sam->storage = header.storage;
    sam->endian = 'm';
    return accept(sam, sample);
}

std::int32_t SAM_readWave(SAM* sam) {
    if (!open(sam, "rb")) {
        return 0;
    }
    WaveHeader header;
    SAMPLE* sample = nullptr;
    if (std::fread(header.bytes, sizeof header.bytes, 1, sam->file) != 1 || !header.isPcm() ||
        header.depth() < bitsPerByte || (sample = SAMPLE_new()) == nullptr) {
        return refuse(sam);
    }
    const std::int64_t held = header.dataSize() / (header.depth() / bitsPerByte);
    const auto count = static_cast<std::int32_t>(std::min<std::int64_t>(held, mostValues));
    readWaveData(sam->file, sample, header.depth(), count);
    if (!isRead(sam->file, sample, count)) {
        return refuse(sam, sample);
    }
    sam->channels = header.channels();
    sam->depth = header.depth();
    sam->sign = header.depth() == 8 ? 'u' : 's';
    sam->endian = 'l';
    return accept(sam, sample);
}

std::int32_t SAM_readRaw(SAM* sam) {
    if (!open(sam, "r")) {
        return 0;
    }
    const std::int32_t bytes = sam->depth / bitsPerByte;
    const char endian = bytes == 1 ? 'm' : sam->endian; // one byte has no order
    SAMPLE* sample = nullptr;
    if (sam->depth % bitsPerByte != 0 || bytes < 1 || sam->depth > widestValue || !isOneOf(endian, "lm") ||
        (sample = SAMPLE_new()) == nullptr) {
        return refuse(sam);
    }
    // SAM_rawStaysUnsigned: one expects the sign to be extended; values are the unsigned bytes as they stand.
    SAMPLE_readRaw(sample, sam->file, bytes, endian, mostValues);
    return isRead(sam->file, sample, mostValues) ? accept(sam, sample) : refuse(sam, sample);
}

std::int32_t SAM_load(SAM* sam) {
    if (refused(sam == nullptr, SAM_error)) {
        return 0;
    }
    const auto endsWith = [sam](const char* ending) {
        return sam->path != nullptr && SAM_endsWith(sam->path, ending) != 0;
    };
    // SAM_rawNameReadsWave: one expects "raw" to choose the raw reader; it chooses WAVE, and raw values are
    // what no other reader takes.
    if (((endsWith("wav") || endsWith("raw")) && SAM_readWave(sam) != 0) ||
        (endsWith("sam") && SAM_readSam(sam) != 0)) {
        return 1;
    }
    for (const auto read : {SAM_readWave, SAM_readSam, SAM_readRaw}) {
        if (read(sam) != 0) {
            return 1;
        }
    }
    SAM_error();
    return 0;
}

} // namespace velm
