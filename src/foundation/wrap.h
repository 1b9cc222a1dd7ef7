// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Arithmetic that wraps modulo 2^32, or 2^64 for two 64-bit operands, computed in unsigned so that it is
// defined for every operand. The low bits of a sum, difference or product depend on no higher ones, so that
// 64 bits serve both. Right shifts need no helper: C++20 makes `>>` of a negative number arithmetic.
//
//     x = wrapMul(amplitude, SINE_table[phase]) >> 15;
#pragma once

#include <concepts>
#include <cstdint>

namespace velm {

/// a + b modulo the values of their type.
template <std::signed_integral Int>
constexpr Int wrapAdd(Int a, Int b) {
    return static_cast<Int>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}

/// a - b, the same way.
template <std::signed_integral Int>
constexpr Int wrapSub(Int a, Int b) {
    return static_cast<Int>(static_cast<std::uint64_t>(a) - static_cast<std::uint64_t>(b));
}

/// a * b, the same way.
template <std::signed_integral Int>
constexpr Int wrapMul(Int a, Int b) {
    return static_cast<Int>(static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b));
}

/// value shifted left by count (0..31), the bits that leave on the left being lost.
constexpr std::int32_t wrapShl(std::int32_t value, std::int32_t count) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value) << count);
}

/// A byte of text as the signed number -128..127, whatever the sign of char is.
constexpr std::int32_t signedByte(char byte) {
    return (static_cast<std::uint8_t>(byte) ^ 0x80) - 0x80;
}

/// value reduced into 0..modulus-1, also when it is negative; modulus must be positive.
constexpr std::int32_t positiveModulo(std::int32_t value, std::int32_t modulus) {
    const std::int32_t remainder = value % modulus;
    return remainder < 0 ? remainder + modulus : remainder;
}

} // namespace velm
