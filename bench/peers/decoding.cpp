// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Netpbm pictures in memory, as text (P3) and as bytes (P6), into new pixels: netpbm's own library, and
// stb_image, which reads no text. Ours and stb's pixels have four bytes, netpbm's twelve.
#include "image/rgb888.h"
#include "rounds.h"

#include <cstdio>
#include <memory>
#include <netpbm/ppm.h>
#include <stb_image.h>
#include <string>

namespace velm::peers {

namespace {

/// The file of a picture, each channel as `channel` writes it.
template <typename Channel>
std::string fileOf(const char* magic, const IMG& picture, Channel channel) {
    std::string file = std::string(magic) + "\n" + std::to_string(picture.width) + " " +
                       std::to_string(picture.height) + "\n255\n";
    for (std::int32_t i = 0; i < picture.width * picture.height; ++i) {
        for (const std::uint32_t shift : {16U, 8U, 0U}) {
            channel(file, (picture.pixels[i] >> shift) & 0xFFU);
        }
    }
    return file;
}

class Stb {
public:
    void decode(const std::string& file) {
        pixels.reset();
        pixels.reset(stbi_load_from_memory(reinterpret_cast<const stbi_uc*>(file.data()),
                                           static_cast<int>(file.size()), &width, &height, &channels, 4));
    }
    /// Its bytes are red, green, blue and alpha.
    Agreement agrees(const IMG& ours) const {
        Owned<IMG_delete> words(IMG_newSized(width, height));
        for (std::int32_t i = 0; i < width * height; ++i) {
            const stbi_uc* const bytes = pixels.get() + std::ptrdiff_t{4} * i;
            words->pixels[i] = RGB888_fromBytes(bytes[0], bytes[1], bytes[2]);
        }
        return agreement(ours, words->pixels, 0);
    }

private:
    int width = 0, height = 0, channels = 0;
    std::unique_ptr<stbi_uc, void (*)(void*)> pixels{nullptr, stbi_image_free};
};

class Netpbm {
public:
    Netpbm() { pm_init("bench_peers", 0); }
    Netpbm(const Netpbm&) = delete;
    Netpbm& operator=(const Netpbm&) = delete;
    ~Netpbm() { release(); }
    void decode(const std::string& file) {
        release();
        std::FILE* const stream = fmemopen(const_cast<char*>(file.data()), file.size(), "rb");
        rows = ppm_readppm(stream, &width, &height, &most);
        std::fclose(stream);
    }
    Agreement agrees(const IMG& ours) const {
        Owned<IMG_delete> words(IMG_newSized(width, height));
        for (std::int32_t i = 0; i < width * height; ++i) {
            const pixel& from = rows[i / width][i % width];
            words->pixels[i] = from.r << 16 | from.g << 8 | from.b;
        }
        return agreement(ours, words->pixels, 0);
    }

private:
    int width = 0, height = 0;
    pixval most = 0;
    pixel** rows = nullptr;

    void release() {
        if (rows != nullptr) {
            ppm_freearray(rows, height);
        }
        rows = nullptr;
    }
};

} // namespace

void decoding(Table& table) {
    const Owned<IMG_delete> picture = noise(table.size);
    const std::string text = fileOf("P3", *picture, [](std::string& file, std::uint32_t value) {
        file += std::to_string(value) + (file.size() % 64 == 0 ? '\n' : ' ');
    });
    const std::string bytes = fileOf(
        "P6", *picture, [](std::string& file, std::uint32_t value) { file += static_cast<char>(value); });
    Owned<IMG_delete> ours;
    Stb stb;
    Netpbm netpbm;
    const auto decodeOurs = [&](const std::string& file) {
        ours = Owned<IMG_delete>();
        ours = Owned<IMG_delete>(IMG_fromPNM(file.data(), file.size()));
    };
    compare(table, "P3 decoded",
            {{"ours", [&] { decodeOurs(text); }, {}},
             {"netpbm", [&] { netpbm.decode(text); }, [&] { return netpbm.agrees(*ours); }}});
    compare(table, "P6 decoded",
            {{"ours", [&] { decodeOurs(bytes); }, {}},
             {"stb_image", [&] { stb.decode(bytes); }, [&] { return stb.agrees(*ours); }},
             {"netpbm", [&] { netpbm.decode(bytes); }, [&] { return netpbm.agrees(*ours); }}});
}

} // namespace velm::peers
