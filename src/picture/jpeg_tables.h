#pragma once

#include <array>
#include <cstdint>

namespace tarnwick::jpeg {

// The zig-zag position of each coefficient, by row * 8 + column.
inline constexpr std::array<std::uint8_t, 64> kZigZag = {0,  1,  5,  6,  14, 15, 27, 28,  //
                                                         2,  4,  7,  13, 16, 26, 29, 42,  //
                                                         3,  8,  12, 17, 25, 30, 41, 43,  //
                                                         9,  11, 18, 24, 31, 40, 44, 53,  //
                                                         10, 19, 23, 32, 39, 45, 52, 54,  //
                                                         20, 22, 33, 38, 46, 51, 55, 60,  //
                                                         21, 34, 37, 47, 50, 56, 59, 61,  //
                                                         35, 36, 48, 49, 57, 58, 62, 63};

// A table given row by row, put into zig-zag order.
constexpr std::array<std::uint8_t, 64> InZigZagOrder(const std::array<std::uint8_t, 64>& rows) {
  std::array<std::uint8_t, 64> zigzag{};
  for (int i = 0; i < 64; ++i) zigzag[kZigZag[i]] = rows[i];
  return zigzag;
}

// ISO/IEC 10918-1 Annex K, table K.1 (luminance), in zig-zag order.
inline constexpr std::array<std::uint8_t, 64> kLuminanceBase =
    InZigZagOrder({16, 11, 10, 16, 24,  40,  51,  61,   //
                   12, 12, 14, 19, 26,  58,  60,  55,   //
                   14, 13, 16, 24, 40,  57,  69,  56,   //
                   14, 17, 22, 29, 51,  87,  80,  62,   //
                   18, 22, 37, 56, 68,  109, 103, 77,   //
                   24, 35, 55, 64, 81,  104, 113, 92,   //
                   49, 64, 78, 87, 103, 121, 120, 101,  //
                   72, 92, 95, 98, 112, 100, 103, 99});

// Table K.2 (chrominance), in zig-zag order.
inline constexpr std::array<std::uint8_t, 64> kChrominanceBase =
    InZigZagOrder({17, 18, 24, 47, 99, 99, 99, 99,  //
                   18, 21, 26, 66, 99, 99, 99, 99,  //
                   24, 26, 56, 99, 99, 99, 99, 99,  //
                   47, 66, 99, 99, 99, 99, 99, 99,  //
                   99, 99, 99, 99, 99, 99, 99, 99,  //
                   99, 99, 99, 99, 99, 99, 99, 99,  //
                   99, 99, 99, 99, 99, 99, 99, 99,  //
                   99, 99, 99, 99, 99, 99, 99, 99});

// The output scale of the scaled DCT for each index, times 1/sqrt(8): the
// quantisation multipliers fold them in.
inline constexpr std::array<double, 8> kDctScale = {
    0.353553390593273, 0.25489778955208,  0.270598050073098, 0.300672443467523,
    0.353553390593273, 0.449988111568207, 0.653281482438186, 1.28145772387074};

}  // namespace tarnwick::jpeg
