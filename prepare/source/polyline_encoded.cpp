// SPDX-License-Identifier: MIT
#include "prepare/source/polyline_encoded.h"

#include <cmath>

namespace torvik {
namespace {

constexpr int firstDigit = 63;
constexpr int firstLastDigit64 = 191;
constexpr int firstLastDigit32 = 95;

// The least significant bit of an encoded number is its sign.
double signedValue(double encoded) {
    const double size = std::floor(encoded / 2);
    return std::fmod(encoded, 2) == 1 ? -size : size;
}

} // namespace

EncodedReader::Item EncodedReader::next() {
    double encoded = 0;
    double weight = 1;
    while (!m_rest.empty()) {
        const auto c = static_cast<unsigned char>(m_rest.front());
        m_rest.remove_prefix(1);
        bool isLast = false;
        const int value = digit(c, isLast);
        if (value >= 0) {
            encoded += value * weight;
            weight *= m_baseIs32 ? 32 : 64;
            if (!isLast)
                continue;
            m_number = signedValue(encoded);
            return Item::number;
        }
        const auto low = static_cast<char>(c & 0x7Fu);
        if (low == '7') {
            m_baseIs32 = true;
        } else if (low == ':' || low == '<' || low == '>' || low == '=') {
            m_flag = low;
            return Item::flag;
        } else if (low > ' ') {
            return Item::stray;
        }
    }
    return Item::end;
}

int EncodedReader::digit(unsigned char c, bool& isLast) const {
    const int code = m_baseIs32 ? c & 0x7F : c;
    const int base = m_baseIs32 ? 32 : 64;
    const int last = m_baseIs32 ? firstLastDigit32 : firstLastDigit64;
    isLast = code >= last;
    const int value = code - (isLast ? last : firstDigit);
    return value >= 0 && value < base ? value : -1;
}

} // namespace torvik
