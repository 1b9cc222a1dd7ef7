// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/key_queue.h"

#include "platform/clock.h"

#include <algorithm>
#include <iterator>

namespace velm {

namespace {

std::uint32_t slot(const KeyQueue& queue, std::uint32_t turn) {
    return (queue.first + turn) % KeyQueue::capacity;
}

bool isEscape(const PressedKey& press) {
    return press.text[0] == KEY_escape;
}

/// The turn of the first Escape that waits; `count` without one.
std::uint32_t turnOfEscape(const KeyQueue& queue) {
    std::uint32_t turn = 0;
    while (turn < queue.count && !isEscape(queue.presses[slot(queue, turn)])) {
        ++turn;
    }
    return turn;
}

/// Takes a press out of its turn: those before it move up by one.
PressedKey takeOut(KeyQueue& queue, std::uint32_t turn) {
    const PressedKey taken = queue.presses[slot(queue, turn)];
    for (; turn > 0; --turn) {
        queue.presses[slot(queue, turn)] = queue.presses[slot(queue, turn - 1)];
    }
    queue.first = slot(queue, 1);
    --queue.count;
    return taken;
}

} // namespace

void pushKey(KeyQueue& queue, const PressedKey& press) {
    if (queue.count < KeyQueue::capacity) {
        ++queue.count;
    } else if (!isEscape(press)) {
        return;
    }
    queue.presses[slot(queue, queue.count - 1)] = press;
}

void pushText(KeyQueue& queue, std::string_view text, std::int32_t keycode) {
    PressedKey press{.keycode = keycode, .micros = CLOCK_now()};
    text.copy(press.text, sizeof press.text - 1);
    pushKey(queue, press);
}

std::optional<PressedKey> takeKey(KeyQueue& queue, std::int64_t now) {
    if (queue.closeAsked) {
        queue.closeAsked = false;
        return PressedKey{.text = {KEY_escape}, .keycode = 0, .micros = now};
    }
    if (queue.count == 0) {
        return std::nullopt;
    }
    const std::uint32_t turn = turnOfEscape(queue);
    const bool isOverdue =
        turn < queue.count && now - queue.presses[slot(queue, turn)].micros >= KeyQueue::patience;
    return takeOut(queue, isOverdue ? turn : 0);
}

void giveKey(KeyQueue& queue, XKBD& keyboard) {
    if (const std::optional<PressedKey> press = takeKey(queue, CLOCK_now())) {
        std::copy(std::begin(press->text), std::end(press->text), keyboard.text);
        keyboard.keycode = press->keycode;
    }
}

bool wantsToLeave(const KeyQueue& queue) {
    return queue.closeAsked || turnOfEscape(queue) < queue.count;
}

} // namespace velm
