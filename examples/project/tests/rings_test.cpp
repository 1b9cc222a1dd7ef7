// Two sets of rings do not disturb each other, they move, and every frame has light.
#include "foundation/owned.h"
#include "rings.h"

#include <algorithm>
#include <cstdio>

using namespace velm;

namespace {

int failures = 0;

void expect(bool holds, const char* what) {
    if (!holds) {
        std::printf("not true: %s\n", what);
        ++failures;
    }
}

} // namespace

int main() {
    const Owned<RINGS_delete> first(RINGS_new());
    const Owned<RINGS_delete> second(RINGS_new());
    const Owned<IMG_delete> a(IMG_newSized(256, 256));
    const Owned<IMG_delete> b(IMG_newSized(256, 256));
    for (int frame = 0; frame < 100; ++frame) {
        RINGS_advance(first), RINGS_draw(first, a);
        expect(std::any_of(a->pixels, a->pixels + 256 * 256,
                           [](std::uint32_t pixel) { return (pixel & 0x808080) != 0; }),
               "a frame has light");
    }
    RINGS_draw(second, b);
    expect(IMG_equal(a, b) == 0, "they move");
    for (int frame = 0; frame < 100; ++frame) {
        RINGS_advance(second);
    }
    RINGS_draw(second, b);
    expect(IMG_equal(a, b) == 1, "two do not disturb each other");
    return failures == 0 ? 0 : 1;
}
